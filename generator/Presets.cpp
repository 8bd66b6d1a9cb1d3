#include "generator/Presets.h"

#include "addin/modGlobals.h"
#include "forms/Components.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr std::int16_t iReserved = 0;

std::int16_t EndOf(const host::Preset& preset) {
  return static_cast<std::int16_t>(preset.get_StepCount() + 1);
}

std::shared_ptr<host::Step> CreateStep() {
  return forms::createObject<host::Step>(host::progIDStep);
}

}  // namespace

PresetPtr FindPreset(const std::string& sName) {
  return addin::gDocument().get_Presets()->FindByName(sName);
}

PresetPtr FindSequence(Run& run, const std::string& sName) {
  auto preset = FindPreset(sName);
  if (!preset) run.CannotFindSequence(sName);
  return preset;
}

bool AddStep(host::Preset& preset, std::int16_t iIndex, const NewStep& newStep) {
  const auto step = CreateStep();
  preset.InsertStep(iIndex, step);  // Init tells whether the step is good
  if (!step->Init(newStep.iKind, newStep.iTargetType, iReserved, newStep.lTargetID,
                  newStep.sSignalName)) {
    return false;
  }
  if (!newStep.sValue.empty()) {
    step->put_Value(newStep.sValue);
    step->put_ValueFormat(host::valueFormatInteger);
  }
  return true;
}

void AppendStep(host::Preset& preset, const NewStep& step) {
  static_cast<void>(AddStep(preset, EndOf(preset), step));
}

bool AddInterfaceEnableSteps(bool bDisable, const PresetPtr& preset) {
  if (!preset) return false;
  for (const auto& panel : addin::gDocument().get_Touchpanels()->Items()) {
    if (panel->get_IsProjectPanel()) continue;
    AppendStep(*preset,
               PanelLevel(panel->get_ID(), "Enabled", bDisable ? host::levelLow : host::levelHigh));
  }
  return true;
}

std::shared_ptr<host::Step> MakeConditionStep(const host::StepCondition& test) {
  const auto conditions = std::make_shared<host::StepConditionGroup>();
  conditions->Add(std::make_shared<host::StepCondition>(test));
  auto step = CreateStep();
  // A step without a target is never refused.
  step->Init(host::stepConditional, host::targetNone, iReserved, 0, "");
  step->put_Conditions(conditions);
  return step;
}

bool InsertBranch(host::Preset& preset, std::int16_t iIndex, const host::StepCondition& test,
                  const BranchWriter& writeBranch) {
  const auto step = MakeConditionStep(test);
  preset.InsertStep(iIndex, step);  // a step that was refused has no branch
  const auto branch = addin::gDocument().get_Presets()->ItemByID(step->get_SubPresetID());
  return branch && writeBranch(branch);
}

bool AppendBranch(host::Preset& preset, const host::StepCondition& test,
                  const BranchWriter& writeBranch) {
  return InsertBranch(preset, EndOf(preset), test, writeBranch);
}

}  // namespace generator
