#include "trellisar/document/DocumentData.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace trellisar {
namespace {

std::int16_t takeNumber(std::int16_t& next) {
  if (next == std::numeric_limits<std::int16_t>::max()) return 0;
  return next++;
}

}  // namespace

std::string* DeviceData::findProperty(std::string_view propertyName) {
  for (auto& [property, value] : properties) {
    if (property == propertyName) return &value;
  }
  return nullptr;
}

host::StandardCommand* DeviceData::findStandardCommand(std::int16_t standardId) {
  for (const auto& command : standardCommands) {
    if (command->get_StandardID() == standardId) return command.get();
  }
  return nullptr;
}

std::string DeviceData::commandFor(std::int16_t standardId) const {
  for (const auto& own : standardCommands) {
    if (own->get_StandardID() == standardId && !own->get_CommandName().empty()) {
      return own->get_CommandName();
    }
  }
  return definition->defaultCommand(standardId);
}

void DocumentData::putSettings(const std::string& title, const std::string& text) {
  for (auto& [titleThere, textThere] : settings) {
    if (titleThere != title) continue;
    textThere = text;
    return;
  }
  settings.emplace_back(title, text);
}

void DocumentData::markStructureChanged() {
  isModified = true;
  programIsCurrent = false;
}

DevicePtr DocumentData::find(std::int16_t id) const {
  const auto found = byId_.find(id);
  return found == byId_.end() ? nullptr : found->second;
}

DevicePtr DocumentData::find(std::int16_t id, DeviceData::Kind kind) const {
  DevicePtr device = find(id);
  return device && device->kind == kind ? device : nullptr;
}

DevicePtr DocumentData::findByHandle(std::int16_t handle) const {
  if (handle == 0) return nullptr;
  for (const auto* list : {&devices, &panels}) {
    for (const DevicePtr& device : *list) {
      if (device->handle == handle) return device;
    }
  }
  return nullptr;
}

DevicePtr DocumentData::findByName(DeviceData::Kind kind, const std::string& deviceName,
                                   const std::string& parentName) const {
  for (const DevicePtr& device : kind == DeviceData::Kind::panel ? panels : devices) {
    if (device->name != deviceName) continue;
    const DevicePtr parent = find(device->parent);
    if ((parent ? parent->name : std::string()) == parentName) return device;
  }
  return nullptr;
}

std::int16_t DocumentData::takeId() { return takeNumber(nextId); }

std::int16_t DocumentData::takeHandle() { return takeNumber(nextHandle); }

std::shared_ptr<PresetData> DocumentData::makePreset() {
  auto preset = std::make_shared<PresetData>();
  preset->id = nextPresetId_++;
  presetsById_[preset->id] = preset;
  return preset;
}

bool DocumentData::addNamedPreset(const std::shared_ptr<PresetData>& preset) {
  if (!presetsByName_.emplace(preset->name, preset).second) return false;
  presets.push_back(preset);
  return true;
}

std::shared_ptr<PresetData> DocumentData::findPreset(const std::string& presetName) const {
  const auto found = presetsByName_.find(presetName);
  return found == presetsByName_.end() ? nullptr : found->second;
}

std::shared_ptr<PresetData> DocumentData::findPreset(std::int32_t id) const {
  const auto found = presetsById_.find(id);
  return found == presetsById_.end() ? nullptr : found->second.lock();
}

void DocumentData::forgetPreset(PresetData& preset) {
  presetsById_.erase(preset.id);
  for (const auto& step : preset.steps) {
    if (step->branch) forgetPreset(*std::exchange(step->branch, nullptr));
    step->preset = nullptr;
  }
}

std::shared_ptr<SignalData> DocumentData::signal(DeviceData& device, const std::string& output,
                                                 const std::string& input,
                                                 std::int16_t type) const {
  for (const auto& known : device.signals) {
    if (known->row.output == output && known->row.input == input && known->row.type == type) {
      return known;
    }
  }
  SignalRow row;
  if (!device.definition->findRow(output, input, type, row)) return nullptr;
  auto made = std::make_shared<SignalData>();
  made->row = row;
  made->deviceId = device.id;
  device.signals.push_back(made);
  return made;
}

std::shared_ptr<PresetData> DocumentData::eventPreset(SignalData& signal, std::size_t event) {
  auto& preset = signal.events.at(event);
  if (!preset) preset = makePreset();
  return preset;
}

BillEntryData* DocumentData::findBillEntry(std::int32_t key) const {
  for (const auto& entry : bill) {
    if (entry->key == key) return entry.get();
  }
  return nullptr;
}

std::vector<DevicePtr> DocumentData::everyDevice() const {
  std::vector<DevicePtr> all;
  for (const DevicePtr& device : devices) {
    all.push_back(device);
    all.insert(all.end(), device->modules.begin(), device->modules.end());
  }
  all.insert(all.end(), panels.begin(), panels.end());
  return all;
}

std::string DocumentData::shownName(std::int16_t id) const {
  const DevicePtr device = find(id);
  if (!device) return {};
  if (device->kind != DeviceData::Kind::module) return device->name;
  return shownName(device->parent) + "/" + device->shortName;
}

}  // namespace trellisar
