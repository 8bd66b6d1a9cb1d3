#include "trellisar/Provisioning.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>
#include <utility>

#include "host/Numbers.h"

namespace trellisar {
namespace {

using Connection = Definition::Connection;
using Kind = DeviceData::Kind;

/// Contacts and sensors share the digital inputs.
Connection portKind(Connection connection) {
  return connection == Connection::sensor ? Connection::contact : connection;
}

/// IP-IDs below 3 belong to the receiver itself.
std::int16_t firstPort(Connection connection) { return connection == Connection::network ? 3 : 1; }

bool isPortFree(const DocumentData& document, Connection connection, std::int16_t port) {
  const auto takes = [&](const DevicePtr& device) {
    return device->port == port && portKind(device->definition->connection) == connection;
  };
  return std::none_of(document.devices.begin(), document.devices.end(), takes);
}

/// The number at the end of a name such as "Digital Input 2"; 0 without one.
std::int16_t numberAtEnd(const std::string& name) {
  const auto digits = name.find_last_not_of("0123456789") + 1;
  std::int16_t number = 0;
  std::from_chars(name.data() + digits, name.data() + name.size(), number);
  return number;
}

/// The port that the name speaks of, if it is free, else the first free one.
std::int16_t choosePort(const DocumentData& document, const Definition& definition,
                        const std::string& name) {
  const Connection connection = portKind(definition.connection);
  if (connection == Connection::none) return 0;
  const std::int16_t named = numberAtEnd(name);
  if (named >= firstPort(connection) && isPortFree(document, connection, named)) return named;
  std::int16_t port = firstPort(connection);
  while (!isPortFree(document, connection, port)) ++port;
  return port;
}

bool isNameTaken(const DocumentData& document, Kind kind, const std::string& name,
                 std::int16_t parent) {
  const auto has = [&](const DevicePtr& device) {
    return device->parent == parent && device->name == name;
  };
  const auto& list = kind == Kind::panel ? document.panels : document.devices;
  return std::any_of(list.begin(), list.end(), has);
}

/// Takes everything that names one of the devices out of a document.
class Cascade {
 public:
  Cascade(DocumentData& document, std::set<std::int16_t> ids)
      : document_(document), ids_(std::move(ids)) {}

  void run() {
    for (const auto& preset : document_.presets) clean(*preset);
    for (const DevicePtr& device : document_.everyDevice()) {
      for (const auto& signal : device->signals) clean(*signal);
      for (const auto& slot : device->slots) clean(*slot);
    }
  }

 private:
  bool names(std::int32_t id) const { return ids_.contains(static_cast<std::int16_t>(id)); }

  bool isTarget(const StepData& step) const {
    const bool hasDevice =
        step.targetType == host::targetDevice || step.targetType == host::targetTouchpanel;
    return hasDevice && names(step.target);
  }

  void clean(PresetData& preset) {
    std::vector<std::shared_ptr<StepData>> kept;
    for (const auto& step : preset.steps) {
      if (step->branch) clean(*step->branch);
      if (isTarget(*step)) {
        step->preset = nullptr;
      } else if (step->condition && names(step->condition->get_DeviceID())) {
        replaceByBranch(preset, *step, kept);
      } else {
        kept.push_back(step);
      }
    }
    preset.steps = std::move(kept);
  }

  void replaceByBranch(PresetData& preset, StepData& step,
                       std::vector<std::shared_ptr<StepData>>& kept) {
    auto steps = std::exchange(step.branch->steps, {});
    document_.forgetPreset(*step.branch);
    step.branch = nullptr;
    step.preset = nullptr;
    for (const auto& inner : steps) {
      inner->preset = &preset;
      if (inner->branch) raise(*inner->branch);
      kept.push_back(inner);
    }
  }

  void raise(PresetData& branch) {
    --branch.depth;
    for (const auto& step : branch.steps) {
      if (step->branch) raise(*step->branch);
    }
  }

  void clean(SignalData& signal) {
    for (const auto& event : signal.events) {
      if (event) clean(*event);
    }
    if (signal.sourceDevice != 0 && names(signal.sourceDevice)) {
      signal.sourceType = 0;
      signal.sourceDevice = 0;
      signal.sourceSignal.clear();
    }
  }

  void clean(SlotData& slot) const {
    if (slot.device == 0 || !names(slot.device)) return;
    slot.device = 0;
    slot.command.clear();
  }

  DocumentData& document_;
  std::set<std::int16_t> ids_;
};

void forgetEvents(DocumentData& document, const SignalData& signal) {
  for (const auto& event : signal.events) {
    if (event) document.forgetPreset(*event);
  }
}

void leave(DocumentData& document, const DevicePtr& device, std::set<std::int16_t>& ids) {
  ids.insert(device->id);
  document.forget(device);
  device->isGone = true;
  for (const auto& signal : device->signals) forgetEvents(document, *signal);
}

}  // namespace

void takeDefinition(DeviceData& device, const DefinitionPtr& definition) {
  const auto old = std::exchange(device.properties, {});
  for (const PropertyDefinition& property : definition->properties) {
    const auto same = [&](const auto& item) { return item.first == property.name; };
    const auto kept = std::find_if(old.begin(), old.end(), same);
    const bool stays = kept != old.end() && property.takes(kept->second);
    device.properties.emplace_back(property.name, stays ? kept->second : property.value);
  }
  device.slots.clear();
  for (const std::string& slot : definition->slots) {
    device.slots.push_back(std::make_shared<SlotData>(SlotData{slot, 0, ""}));
  }
  device.definition = definition;
}

DevicePtr addDevice(DocumentData& document, const DefinitionPtr& definition,
                    const std::string& name, std::int16_t parent, std::string& error) {
  const bool isPanel = definition->form == Definition::Form::interface;
  const Kind kind = isPanel ? Kind::panel : Kind::device;
  if (isNameTaken(document, kind, name, parent)) {
    error = "There is a device named \"" + name + "\" in the system already.";
    return nullptr;
  }
  auto device = std::make_shared<DeviceData>();
  device->kind = kind;
  device->id = document.takeId();
  device->handle = document.takeHandle();
  if (device->id == 0 || device->handle == 0) {
    error = "\"" + name + "\" can't be added: the system has used up its device numbers.";
    return nullptr;
  }
  device->parent = parent;
  device->name = name;
  device->description = definition->description;
  device->maker = definition->maker;
  device->libraryId = definition->controlEntry;
  if (parent != 0) device->port = choosePort(document, *definition, name);
  takeDefinition(*device, definition);
  (isPanel ? document.panels : document.devices).push_back(device);
  document.enter(device);
  document.markStructureChanged();
  return device;
}

DevicePtr addModule(DocumentData& document, const DevicePtr& device, const DeviceData& draft) {
  auto module = std::make_shared<DeviceData>();
  module->kind = Kind::module;
  module->id = document.takeId();
  if (module->id == 0) return nullptr;
  module->parent = device->id;
  module->name = draft.name;
  module->shortName = draft.shortName;
  module->description = draft.description;
  module->maker = draft.maker;
  module->libraryId = draft.libraryId;
  takeDefinition(*module, draft.definition);
  device->modules.push_back(module);
  document.enter(module);
  document.markStructureChanged();
  return module;
}

void removeDevice(DocumentData& document, const DevicePtr& device) {
  std::set<std::int16_t> ids;
  leave(document, device, ids);
  for (const DevicePtr& module : device->modules) leave(document, module, ids);
  std::erase(device->kind == Kind::panel ? document.panels : document.devices, device);
  Cascade(document, std::move(ids)).run();
  document.markStructureChanged();
}

void dropLostSignals(DocumentData& document, DeviceData& device) {
  std::erase_if(device.signals, [&](const auto& signal) {
    const SignalRow& row = signal->row;
    SignalRow found;
    if (device.definition->findRow(row.output, row.input, row.type, found)) return false;
    forgetEvents(document, *signal);
    return true;
  });
}

bool canTakePort(const DocumentData& document, const DeviceData& device, std::int16_t port) {
  const Connection connection = portKind(device.definition->connection);
  if (connection == Connection::none || device.parent == 0) return false;
  if (port == device.port) return true;
  return port >= firstPort(connection) && isPortFree(document, connection, port);
}

std::string portText(const DeviceData& device) {
  if (device.port == 0) return {};
  const std::string number = std::to_string(device.port);
  switch (device.definition->connection) {
    case Connection::none:
      return {};
    case Connection::serial:
      return "Serial Port " + number;
    case Connection::infrared:
      return "Infrared Port " + number;
    case Connection::relay:
      return "Relay " + number;
    case Connection::contact:
    case Connection::sensor:
      return "Digital Input " + number;
    case Connection::network:
      return "IP-ID " + ipId(device);
    case Connection::link:
      return "OL" + number;
  }
  return {};
}

std::string ipId(const DeviceData& device) {
  if (device.definition->connection != Connection::network || device.port == 0) return {};
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), device.port, 16);
  std::string text(digits.data(), end.ptr);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
  return text.size() < 2 ? "0" + text : text;
}

}  // namespace trellisar
