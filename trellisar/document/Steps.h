#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <variant>

#include "trellisar/document/DocumentData.h"

/// What the steps of a preset do. Whoever looks at a program looks at it through these, so that a
/// new kind of step does not compile until each of them says what it makes of it.
namespace trellisar {

/// Sends its signal, with its value, to a device, module or touch panel.
struct CommandStep {
  const StepData& data;
  std::int16_t signalType;
};

/// Waits before what follows; its value are the hundredths of a second.
struct DelayStep {
  const StepData& data;
};

/// Runs a named preset.
struct CallStep {
  const StepData& data;

  std::int32_t preset() const { return data.target; }
};

/// Goes through the steps of its branch if its condition holds. It has a branch while it stands in
/// a preset.
struct BranchStep {
  const StepData& data;

  const std::optional<host::StepCondition>& condition() const { return data.condition; }
  const PresetData& branch() const { return *data.branch; }
};

using Step = std::variant<CommandStep, DelayStep, CallStep, BranchStep>;

/// What a step does; nothing for one that was never initialised, or whose kind there is not.
std::optional<Step> stepOf(const StepData& data);

/// A function for each kind of step, as std::visit takes them.
template <typename... Functions>
struct ForStep : Functions... {
  using Functions::operator()...;
};
template <typename... Functions>
ForStep(Functions...) -> ForStep<Functions...>;

/// Calls `see` with each step of the preset that does something, in their order, and with its
/// number in the preset, from 1. Branches are not entered.
void eachStep(const PresetData& preset, const std::function<void(const Step&, int number)>& see);

/// As above with the steps of all branches, each behind the step that it belongs to.
void everyStep(const PresetData& preset, const std::function<void(const Step&)>& see);

}  // namespace trellisar
