#include "bench/DeepCopy.h"

#include <unordered_map>

#include "host/Numbers.h"

namespace bench {
namespace {

using namespace trellisar;

template <typename T>
std::vector<std::shared_ptr<T>> copyEach(const std::vector<std::shared_ptr<T>>& items) {
  std::vector<std::shared_ptr<T>> copies;
  copies.reserve(items.size());
  for (const auto& item : items) copies.push_back(std::make_shared<T>(*item));
  return copies;
}

class Copier {
 public:
  explicit Copier(const DocumentData& document)
      : from_(document), copy_(std::make_shared<DocumentData>(document.library)) {}

  std::shared_ptr<DocumentData> copy() {
    copyHead();
    for (const auto& preset : from_.presets) copyNamedPreset(*preset);
    for (std::size_t i = 0; i < from_.presets.size(); ++i) {
      copySteps(*from_.presets[i], *copy_->presets[i]);
    }
    copyDevices(from_.devices, copy_->devices);
    copyDevices(from_.panels, copy_->panels);
    return copy_;
  }

 private:
  void copyHead() {
    copy_->journal = from_.journal;
    copy_->panelSource = from_.panelSource;
    copy_->name = from_.name;
    copy_->folder = from_.folder;
    copy_->ownFile = from_.ownFile;
    copy_->application = from_.application;
    copy_->isModified = from_.isModified;
    copy_->programIsCurrent = from_.programIsCurrent;
    copy_->compiledProgram = from_.compiledProgram;
    copy_->settings = from_.settings;
    copy_->nextId = from_.nextId;
    copy_->nextHandle = from_.nextHandle;
    copy_->controlSystem = from_.controlSystem;
    copy_->sensorHandles = from_.sensorHandles;
    copy_->lastError = from_.lastError;
    copy_->bill = copyEach(from_.bill);
  }

  void copyNamedPreset(const PresetData& preset) {
    const auto made = copy_->makePreset();
    made->name = preset.name;
    made->comment = preset.comment;
    ids_.emplace(preset.id, made->id);
    copy_->addNamedPreset(made);
  }

  void copySteps(const PresetData& from, PresetData& to) {
    to.steps.reserve(from.steps.size());
    for (const auto& step : from.steps) {
      auto made = std::make_shared<StepData>(*step);
      made->preset = &to;
      if (made->targetType == host::targetPreset) made->target = ids_.at(made->target);
      if (step->branch) made->branch = copyUnnamed(*step->branch);
      to.steps.push_back(std::move(made));
    }
  }

  std::shared_ptr<PresetData> copyUnnamed(const PresetData& preset) {
    auto made = copy_->makePreset();
    made->depth = preset.depth;
    copySteps(preset, *made);
    return made;
  }

  void copyDevices(const std::vector<DevicePtr>& from, std::vector<DevicePtr>& to) {
    to.reserve(from.size());
    for (const DevicePtr& device : from) {
      auto made = std::make_shared<DeviceData>(*device);
      made->standardCommands = copyEach(device->standardCommands);
      made->slots = copyEach(device->slots);
      made->signals = copyEach(device->signals);
      for (const auto& signal : made->signals) {
        for (auto& event : signal->events) {
          if (event) event = copyUnnamed(*event);
        }
      }
      made->modules.clear();
      copyDevices(device->modules, made->modules);
      copy_->enter(made);
      to.push_back(std::move(made));
    }
  }

  const DocumentData& from_;
  std::shared_ptr<DocumentData> copy_;
  std::unordered_map<std::int32_t, std::int32_t> ids_;  // of the named presets
};

}  // namespace

std::shared_ptr<DocumentData> deepCopy(const DocumentData& document) {
  return Copier(document).copy();
}

}  // namespace bench
