#include <utility>

#include "host/Error.h"
#include "host/Numbers.h"
#include "trellisar/document/StepRules.h"
#include "trellisar/objects/ProgramObjects.h"

namespace trellisar {

StepObject::StepObject(DocumentPtr document, std::shared_ptr<StepData> data)
    : document_(std::move(document)), data_(std::move(data)) {}

void StepObject::changed() const {
  if (document_) document_->markProgramChanged();
}

bool StepObject::Init(std::int16_t iKind, std::int16_t iTargetType, std::int16_t,
                      std::int32_t lTargetID, const std::string& strSignalName) {
  if (!isStepForm(iKind, iTargetType)) return false;
  if (document_ && !isTargetThere(*document_, iTargetType, lTargetID)) return false;
  const bool isTooDeep = data_->preset && data_->preset->depth >= maximumBranchDepth;
  if (iKind == host::stepConditional && isTooDeep) return false;
  data_->kind = iKind;
  data_->targetType = iTargetType;
  data_->target = lTargetID;
  data_->signal = strSignalName;
  matchBranch();
  changed();
  return true;
}

bool StepObject::enter(const DocumentPtr& document, PresetData& preset) {
  const bool isEmpty = data_->kind == 0;
  if (!isEmpty && !isTargetThere(*document, data_->targetType, data_->target)) return false;
  if (data_->kind == host::stepConditional && preset.depth >= maximumBranchDepth) return false;
  document_ = document;
  data_->preset = &preset;
  matchBranch();
  return true;
}

/// A conditional step has a branch while it stands in a preset, another step has none.
void StepObject::matchBranch() {
  const bool hasBranch = data_->preset && data_->kind == host::stepConditional;
  if (hasBranch == static_cast<bool>(data_->branch)) return;
  if (!hasBranch) {
    document_->forgetPreset(*std::exchange(data_->branch, nullptr));
    return;
  }
  data_->branch = document_->makePreset();
  data_->branch->depth = data_->preset->depth + 1;
}

void StepObject::put_Value(const std::string& strValue) {
  if (data_->value == strValue) return;
  data_->value = strValue;
  changed();
}

void StepObject::put_ValueFormat(std::int16_t iFormat) {
  if (data_->valueFormat == iFormat) return;
  data_->valueFormat = iFormat;
  changed();
}

std::shared_ptr<host::StepConditionGroup> StepObject::get_Conditions() const {
  if (!data_->condition) return nullptr;
  auto group = std::make_shared<host::StepConditionGroup>();
  group->Add(std::make_shared<host::StepCondition>(*data_->condition));
  return group;
}

void StepObject::put_Conditions(const std::shared_ptr<host::StepConditionGroup>& oConditions) {
  std::optional<host::StepCondition> condition;
  if (oConditions && !oConditions->Items().empty()) {
    if (oConditions->Items().size() > 1) {
      throw host::Error(host::errBadArgument, "A conditional step has one test.");
    }
    condition = *oConditions->Items().front();
  }
  if (data_->condition == condition) return;
  data_->condition = condition;
  changed();
}

std::int32_t StepObject::get_SubPresetID() const { return data_->branch ? data_->branch->id : 0; }

}  // namespace trellisar
