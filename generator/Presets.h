#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "generator/Run.h"
#include "generator/Steps.h"
#include "host/Program.h"

/// How a sub-builder writes the steps of a preset of the open document. Steps count from 1; no
/// named preset is ever created.
namespace generator {

using PresetPtr = std::shared_ptr<host::Preset>;

/// Writes the steps of a branch; its answer is that of the operation which made the branch.
using BranchWriter = std::function<bool(const PresetPtr& branch)>;

/// Nothing when absent.
PresetPtr FindPreset(const std::string& sName);
/// A preset that steps are to go into: its absence is a failure with a text.
PresetPtr FindSequence(Run& run, const std::string& sName);

[[nodiscard]] bool AddStep(host::Preset& preset, std::int16_t iIndex, const NewStep& step);
/// A step at the end, whose result is not looked at.
void AppendStep(host::Preset& preset, const NewStep& step);
/// Enables or disables every panel without a project of its own, at the end. False without a
/// preset.
[[nodiscard]] bool AddInterfaceEnableSteps(bool bDisable, const PresetPtr& preset);

std::shared_ptr<host::Step> MakeConditionStep(const host::StepCondition& test);
[[nodiscard]] bool InsertBranch(host::Preset& preset, std::int16_t iIndex,
                                const host::StepCondition& test, const BranchWriter& writeBranch);
[[nodiscard]] bool AppendBranch(host::Preset& preset, const host::StepCondition& test,
                                const BranchWriter& writeBranch);

}  // namespace generator
