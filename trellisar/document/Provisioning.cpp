#include "trellisar/document/Provisioning.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>
#include <utility>

#include "forms/Text.h"
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

/// How many ports of a connection the document's receiver has.
std::int16_t portCount(const DocumentData& document, Connection connection) {
  const DevicePtr receiver = document.find(document.controlSystem);
  if (receiver) {
    for (const auto& [portConnection, count] : receiver->definition->ports) {
      if (portConnection == connection) return count;
    }
  }
  return INT16_MAX;
}

/// Whether the receiver has the port and those behind it that the device takes, and no other device
/// is at one of them.
bool fitsAt(const DocumentData& document, const DeviceData& device, std::int16_t port) {
  const Connection connection = portKind(device.definition->connection);
  const int end = port + device.definition->portsTaken();
  if (port < firstPort(connection) || end - 1 > portCount(document, connection)) return false;
  const auto isInTheWay = [&](const DevicePtr& other) {
    return other->id != device.id && other->port > 0 && other->port < end &&
           portKind(other->definition->connection) == connection &&
           other->port + other->definition->portsTaken() > port;
  };
  return std::none_of(document.devices.begin(), document.devices.end(), isInTheWay);
}

/// The number at the end of a name such as "Digital Input 2"; 0 without one.
std::int16_t numberAtEnd(const std::string& name) {
  const auto digits = name.find_last_not_of("0123456789") + 1;
  std::int16_t number = 0;
  std::from_chars(name.data() + digits, name.data() + name.size(), number);
  return number;
}

/// The port that the name speaks of, if it is free, else the first free one; 0 when none is. A
/// transmitter is at the link of its name or at none.
std::int16_t choosePort(const DocumentData& document, const DeviceData& device) {
  const Connection connection = portKind(device.definition->connection);
  if (connection == Connection::none || device.parent == 0) return 0;
  const std::int16_t named = numberAtEnd(device.name);
  if (fitsAt(document, device, named)) return named;
  if (connection == Connection::link && named > portCount(document, connection)) return 0;
  const int last = portCount(document, connection);
  for (int port = firstPort(connection); port <= last; ++port) {
    if (fitsAt(document, device, static_cast<std::int16_t>(port))) {
      return static_cast<std::int16_t>(port);
    }
  }
  return 0;
}

bool needsPort(const DeviceData& device) {
  return device.parent != 0 && device.definition->connection != Connection::none;
}

/// "serial port", and "relays" where a device takes more than one.
std::string portWords(const Definition& definition) {
  const std::string plural = definition.portsTaken() == 1 ? "" : "s";
  switch (portKind(definition.connection)) {
    case Connection::serial:
      return "serial port" + plural;
    case Connection::infrared:
      return "infrared port" + plural;
    case Connection::relay:
      return "relay" + plural;
    case Connection::link:
      return "link port" + plural;
    case Connection::network:
      return "IP-ID" + plural;
    default:
      return "digital input" + plural;
  }
}

/// Two digits at least.
std::string hexadecimal(std::int16_t number) {
  std::array<char, 8> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16);
  std::string text(digits.data(), end.ptr);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
  return text.size() < 2 ? "0" + text : text;
}

std::string portText(Connection connection, std::int16_t port) {
  const std::string number = std::to_string(port);
  switch (connection) {
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
      return "IP-ID " + hexadecimal(port);
    case Connection::link:
      return "OL" + number;
  }
  return {};
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
  device->description = isPanel ? definition->description : describe(*definition);
  device->maker = definition->maker;
  device->libraryId = definition->controlEntry;
  takeDefinition(*device, definition);
  device->port = choosePort(document, *device);
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

void changeReceiver(DocumentData& document, const DefinitionPtr& definition) {
  const DevicePtr receiver = document.find(document.controlSystem);
  takeDefinition(*receiver, definition);
  receiver->description = describe(*definition);
  receiver->maker = definition->maker;
  for (const DevicePtr& device : document.devices) {
    if (!fitsAt(document, *device, device->port)) device->port = choosePort(document, *device);
  }
  document.markStructureChanged();
}

std::vector<std::string> devicesWithoutPort(const DocumentData& document) {
  const DevicePtr receiver = document.find(document.controlSystem);
  std::vector<std::string> sentences;
  for (const DevicePtr& device : document.devices) {
    if (!needsPort(*device) || fitsAt(document, *device, device->port)) continue;
    const Definition& definition = *device->definition;
    const std::int16_t taken = definition.portsTaken();
    const std::string count = std::to_string(taken);
    sentences.push_back("\"" + device->name + "\" (" + definition.name + ") needs " +
                        (taken == 1 ? "a" : count) + " " + portWords(definition) + ", and the " +
                        receiver->definition->name + " has " +
                        (taken == 1 ? "none left" : "no " + count + " left side by side") +
                        ". Choose a device that is connected otherwise, or a receiver with more "
                        "ports.");
  }
  return sentences;
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
  return needsPort(device) && (port == device.port || fitsAt(document, device, port));
}

std::string describe(const Definition& definition) {
  const std::string start = forms::lowerCase(definition.name);
  if (forms::lowerCase(definition.description).starts_with(start)) return definition.description;
  if (definition.description.empty()) return definition.name;
  return definition.name + ": " + definition.description;
}

std::string portText(const DeviceData& device) {
  return device.port == 0 ? "" : portText(device.definition->connection, device.port);
}

std::vector<std::string> portTexts(const DeviceData& device) {
  std::vector<std::string> texts;
  if (device.port == 0) return texts;
  for (std::int16_t i = 0; i < device.definition->portsTaken(); ++i) {
    texts.push_back(
        portText(device.definition->connection, static_cast<std::int16_t>(device.port + i)));
  }
  return texts;
}

std::string ipId(const DeviceData& device) {
  if (device.definition->connection != Connection::network || device.port == 0) return {};
  return hexadecimal(device.port);
}

}  // namespace trellisar
