#include <utility>

#include "forms/Numbers.h"
#include "host/Error.h"
#include "trellisar/objects/ProgramObjects.h"

namespace trellisar {
namespace {

void requireOpen(const DocumentData& document) {
  if (!document.isClosed) return;
  throw host::Error(host::errDocumentClosed, "The system has been closed.");
}

class PresetObject : public host::Preset {
 public:
  PresetObject(DocumentPtr document, std::shared_ptr<PresetData> data)
      : document_(std::move(document)), data_(std::move(data)) {}

  std::int32_t get_ID() const override { return data_->id; }
  std::string get_Name() const override { return data_->name; }
  std::string get_Comment() const override { return data_->comment; }

  void put_Comment(const std::string& strComment) override {
    requireOpen(*document_);
    if (data_->comment == strComment) return;
    data_->comment = strComment;
    document_->markProgramChanged();
  }

  std::int16_t get_StepCount() const override {
    return forms::toInt16(static_cast<double>(data_->steps.size()));
  }

  std::vector<std::shared_ptr<host::Step>> get_Steps() const override {
    std::vector<std::shared_ptr<host::Step>> items;
    for (const auto& step : data_->steps) {
      items.push_back(std::make_shared<StepObject>(document_, step));
    }
    return items;
  }

  bool InsertStep(std::int16_t iIndex, const std::shared_ptr<host::Step>& oStep) override {
    requireOpen(*document_);
    const auto step = std::dynamic_pointer_cast<StepObject>(oStep);
    const bool isInRange = iIndex >= 1 && std::cmp_less_equal(iIndex, data_->steps.size() + 1);
    if (!step || step->data()->preset || !isInRange) return false;
    if (!step->enter(document_, *data_)) return false;
    data_->steps.insert(data_->steps.begin() + (iIndex - 1), step->data());
    document_->markProgramChanged();
    return true;
  }

  void ClearSteps() override {
    requireOpen(*document_);
    if (data_->steps.empty()) return;
    for (const auto& step : std::exchange(data_->steps, {})) {
      step->preset = nullptr;
      if (step->branch) document_->forgetPreset(*std::exchange(step->branch, nullptr));
    }
    document_->markProgramChanged();
  }

 private:
  DocumentPtr document_;
  std::shared_ptr<PresetData> data_;
};

class PresetListObject : public host::PresetList {
 public:
  explicit PresetListObject(DocumentPtr document) : document_(std::move(document)) {}

  std::shared_ptr<host::Preset> FindByName(const std::string& strName) const override {
    return object(document_->findPreset(strName));
  }

  std::shared_ptr<host::Preset> ItemByID(std::int32_t lPresetID) const override {
    return object(document_->findPreset(lPresetID));
  }

  std::vector<std::shared_ptr<host::Preset>> Items() const override {
    std::vector<std::shared_ptr<host::Preset>> items;
    for (const auto& preset : document_->presets) items.push_back(object(preset));
    return items;
  }

 private:
  std::shared_ptr<host::Preset> object(const std::shared_ptr<PresetData>& preset) const {
    return preset ? makePresetObject(document_, preset) : nullptr;
  }

  DocumentPtr document_;
};

}  // namespace

std::shared_ptr<host::Preset> makePresetObject(const DocumentPtr& document,
                                               const std::shared_ptr<PresetData>& preset) {
  return std::make_shared<PresetObject>(document, preset);
}

std::shared_ptr<host::PresetList> makePresetList(const DocumentPtr& document) {
  return std::make_shared<PresetListObject>(document);
}

}  // namespace trellisar
