#include "trellisar/compare/StepUnits.h"

#include <initializer_list>
#include <map>

#include "forms/Text.h"
#include "trellisar/compile/Words.h"

namespace trellisar {
namespace {

/// The texts in one, which no other texts give.
std::string joined(std::initializer_list<std::string> texts) {
  std::string all;
  for (const std::string& text : texts) all += std::to_string(text.size()) + ":" + text;
  return all;
}

class Namer {
 public:
  explicit Namer(const DocumentData& document) : document_(document) {}

  std::string name(const Step& step) const {
    return std::visit(ForStep{[&](const CommandStep& command) { return sending(command.data); },
                              [&](const DelayStep& delay) { return sending(delay.data); },
                              [&](const CallStep& call) {
                                return joined({"call", document_.findPreset(call.preset())->name});
                              },
                              [&](const BranchStep& branch) { return condition(branch); }},
                      step);
  }

  std::string device(const Step& step) const {
    const auto* command = std::get_if<CommandStep>(&step);
    return command ? words::targetOf(document_, command->data) : std::string();
  }

  std::string content(const Step& step) const {
    return std::visit(ForStep{[](const CommandStep& command) { return command.data.value; },
                              [](const DelayStep& delay) { return delay.data.value; },
                              [](const CallStep&) { return std::string(); },
                              [&](const BranchStep& branch) { return content(branch.branch()); }},
                      step);
  }

 private:
  std::string sending(const StepData& step) const {
    return joined({std::to_string(step.kind), std::to_string(step.targetType),
                   words::targetOf(document_, step), step.signal});
  }

  std::string condition(const BranchStep& branch) const {
    if (!branch.condition()) return "always";
    const host::StepCondition& test = *branch.condition();
    return joined({document_.shownName(test.get_DeviceID()),
                   std::to_string(test.get_ConditionType()), test.get_SignalName(),
                   test.get_StateName(), std::to_string(test.get_Compare()),
                   std::to_string(test.get_Value())});
  }

  std::string content(const PresetData& branch) const {
    std::string all;
    eachStep(branch, [&](const Step& step, int) { all += joined({name(step), content(step)}); });
    return all;
  }

  const DocumentData& document_;
};

std::string ordinal(std::size_t occurrence) {
  constexpr const char* small[] = {"", "second ", "third ", "fourth "};
  return occurrence <= std::size(small) ? small[occurrence - 1]
                                        : std::to_string(occurrence) + "th ";
}

std::string titleOf(const DocumentData& document, const Step& step, const std::string& which) {
  return std::visit(ForStep{[&](const CommandStep& command) {
                              return words::targetOf(document, command.data) + "'s " + which +
                                     command.data.signal;
                            },
                            [&](const DelayStep&) { return which + "wait"; },
                            [&](const CallStep& call) {
                              return "the " + which + "run of " +
                                     words::inQuotes(document.findPreset(call.preset())->name);
                            },
                            [&](const BranchStep& branch) {
                              const std::string test = words::conditionOf(document, branch);
                              return which + "\"if " + test + "\"";
                            }},
                    step);
}

}  // namespace

bool StepUnit::isSameAs(const StepUnit& other) const {
  return name == other.name && content == other.content && timing == other.timing;
}

bool StepUnit::isRelatedTo(const StepUnit& other) const {
  if (name == other.name) return true;
  const auto isBranch = [](const StepUnit& unit) {
    return unit.step && std::holds_alternative<BranchStep>(*unit.step);
  };
  return isBranch(*this) && isBranch(other) && !content.empty() && content == other.content;
}

bool StepUnit::isToSameDevice(const StepUnit& other) const {
  return !device.empty() && device == other.device;
}

std::vector<StepUnit> unitsOf(const DocumentData& document, const PresetData& preset) {
  const Namer namer(document);
  std::vector<StepUnit> units;
  std::map<std::string, std::size_t> occurrences;
  bool isBegun = false;
  eachStep(preset, [&](const Step& step, int) {
    if (!isBegun) units.emplace_back();
    StepUnit& unit = units.back();
    const auto* delay = std::get_if<DelayStep>(&step);
    isBegun = delay != nullptr;
    if (delay) {
      unit.delays.push_back(*delay);
      unit.timing += joined({namer.name(step), namer.content(step)});
      return;
    }
    unit.step.emplace(step);
    unit.device = namer.device(step);
    unit.name = namer.name(step);
    unit.content = namer.content(step);
    unit.occurrence = ++occurrences[unit.name];
  });
  return units;
}

std::string StepWords::title(const StepUnit& unit) const {
  return unit.step ? titleOf(document_, *unit.step, ordinal(unit.occurrence)) : "the end";
}

std::string StepWords::value(const StepUnit& unit) const {
  if (!unit.step) return {};
  return std::visit(
      ForStep{[](const CommandStep& command) { return forms::trimmed(words::valueOf(command)); },
              [](const DelayStep&) { return std::string(); },
              [](const CallStep&) { return std::string(); },
              [&](const BranchStep& branch) {
                const std::string steps = all(branch.branch());
                return "(" + steps + ")";
              }},
      *unit.step);
}

std::string StepWords::timing(const StepUnit& unit) const {
  std::string text;
  for (const DelayStep& delay : unit.delays) {
    text += (text.empty() ? "" : " and ") + words::seconds(delay.data.value);
  }
  return text.empty() ? text : text + " later";
}

std::string StepWords::details(const StepUnit& unit) const {
  return forms::trimmed(value(unit) + " " + timing(unit));
}

std::string StepWords::all(const PresetData& preset) const {
  std::string text;
  for (const StepUnit& unit : unitsOf(document_, preset)) {
    text += (text.empty() ? "" : ", ") + forms::trimmed(title(unit) + " " + details(unit));
  }
  return text;
}

}  // namespace trellisar
