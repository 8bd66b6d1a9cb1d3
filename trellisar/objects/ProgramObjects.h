#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/Program.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// A step of a document; without a document one that is being filled.
class StepObject : public host::Step {
 public:
  StepObject() : data_(std::make_shared<StepData>()) {}
  StepObject(DocumentPtr document, std::shared_ptr<StepData> data);

  const std::shared_ptr<StepData>& data() const { return data_; }
  /// Puts the step, which stands in no preset, into one; false when its target is not in the
  /// document.
  bool enter(const DocumentPtr& document, PresetData& preset);

  bool Init(std::int16_t iKind, std::int16_t iTargetType, std::int16_t iReserved,
            std::int32_t lTargetID, const std::string& strSignalName) override;
  std::int16_t get_Kind() const override { return data_->kind; }
  std::int16_t get_TargetType() const override { return data_->targetType; }
  std::int32_t get_TargetID() const override { return data_->target; }
  std::string get_SignalName() const override { return data_->signal; }
  std::string get_Value() const override { return data_->value; }
  void put_Value(const std::string& strValue) override;
  std::int16_t get_ValueFormat() const override { return data_->valueFormat; }
  void put_ValueFormat(std::int16_t iFormat) override;
  std::shared_ptr<host::StepConditionGroup> get_Conditions() const override;
  void put_Conditions(const std::shared_ptr<host::StepConditionGroup>& oConditions) override;
  std::int32_t get_SubPresetID() const override;

 private:
  void changed() const;
  void matchBranch();

  DocumentPtr document_;
  std::shared_ptr<StepData> data_;
};

std::shared_ptr<host::Preset> makePresetObject(const DocumentPtr& document,
                                               const std::shared_ptr<PresetData>& preset);
std::shared_ptr<host::PresetList> makePresetList(const DocumentPtr& document);
std::shared_ptr<host::SignalList> makeSignalList(const DocumentPtr& document);

}  // namespace trellisar
