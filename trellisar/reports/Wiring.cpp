#include "trellisar/reports/Wiring.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "host/Numbers.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/Steps.h"

namespace trellisar {
namespace {

using Connection = Definition::Connection;

int groupOf(Connection connection) {
  constexpr Connection order[] = {Connection::link,     Connection::network, Connection::serial,
                                  Connection::infrared, Connection::relay,   Connection::contact};
  const Connection shared = connection == Connection::sensor ? Connection::contact : connection;
  return static_cast<int>(std::find(std::begin(order), std::end(order), shared) -
                          std::begin(order));
}

std::string joined(const std::vector<std::string>& texts, const char* between) {
  std::string all;
  for (const std::string& text : texts) all += (all.empty() ? "" : between) + text;
  return all;
}

void addOnce(std::vector<std::string>& texts, const std::string& text) {
  if (std::find(texts.begin(), texts.end(), text) == texts.end()) texts.push_back(text);
}

/// What the steps do in the end, whatever is tested before: presets and commands by name.
void addEffects(const DocumentData& document, const PresetData& preset,
                std::vector<std::string>& effects) {
  everyStep(preset, [&](const Step& step) {
    std::visit(ForStep{[&](const CommandStep& command) { addOnce(effects, command.data.signal); },
                       [](const DelayStep&) {},
                       [&](const CallStep& call) {
                         addOnce(effects, document.findPreset(call.preset())->name);
                       },
                       [](const BranchStep&) {}},
               step);
  });
}

/// What an input of the receiver is there for: what its contact does when it closes and opens, and
/// who watches it.
std::string useOfInput(const DocumentData& document, const DeviceData& device) {
  std::vector<std::string> uses;
  for (const auto& signal : device.signals) {
    for (std::size_t event = 0; event < signal->events.size(); ++event) {
      if (!signal->events[event]) continue;
      std::vector<std::string> effects;
      addEffects(document, *signal->events[event], effects);
      if (effects.empty()) continue;
      constexpr std::size_t high = host::eventHigh;
      uses.push_back((event == high ? "closes: " : "opens: ") + joined(effects, ", "));
    }
  }
  for (const auto& [watcher, signal] : fedSignals(document)) {
    if (signal->sourceDevice == device.id) addOnce(uses, "watched by " + watcher);
  }
  return joined(uses, "; ");
}

std::string useOf(const DocumentData& document, const DeviceData& device, std::size_t terminal) {
  const Definition& definition = *device.definition;
  if (terminal < definition.terminals.size()) return definition.terminals[terminal];
  if (definition.controlEntry == host::entryPowerRelay) return "mains of the display";
  if (definition.controlEntry == host::entryDigitalInput) return useOfInput(document, device);
  if (definition.controlEntry == host::entryKestrum) return "help desk";
  if (definition.form == Definition::Form::interface) return "panel";
  switch (definition.connection) {
    case Connection::link:
      return "picture and sound";
    case Connection::sensor:
      return "room occupied";
    case Connection::relay:
      return definition.commands.empty() ? "" : definition.commands.front().name;
    default:
      return "control";
  }
}

std::string settingsOf(const DeviceData& device) {
  std::vector<std::string> texts;
  if (!device.address.empty()) texts.push_back(device.address);
  for (const auto& [name, value] : device.properties) {
    if (value.empty()) continue;
    if (name == "Baud Rate") texts.push_back(value + " baud");
    if (name == "Set ID" || name == "Hardware Address") texts.push_back(name + " " + value);
  }
  return joined(texts, ", ");
}

std::string pictureOf(const Definition& definition) {
  constexpr std::pair<std::int16_t, const char*> entries[] = {
      {host::entryPowerRelay, "relay.svg"},
      {host::entryDigitalInput, "contact.svg"},
      {host::entryMotionDetector, "motion-sensor.svg"},
      {host::entryKestrum, "monitoring.svg"}};
  for (const auto& [entry, picture] : entries) {
    if (definition.controlEntry == entry) return picture;
  }
  constexpr std::pair<const char*, const char*> categories[] = {
      {"Transmitter", "transmitter.svg"}, {"Screen", "screen.svg"}, {"Projector Lift", "lift.svg"}};
  for (const auto& [category, picture] : categories) {
    if (definition.category == category) return picture;
  }
  return definition.form == Definition::Form::interface ? "touch-panel.svg" : "display.svg";
}

Wire::Side sideOf(const Definition& definition) {
  const bool tells =
      definition.form == Definition::Form::interface ||
      definition.controlEntry == host::entryKestrum || definition.connection == Connection::link ||
      definition.connection == Connection::contact || definition.connection == Connection::sensor;
  return tells ? Wire::Side::source : Wire::Side::target;
}

Wire wireOf(const DocumentData& document, const DeviceData& device, std::size_t terminal) {
  const Definition& definition = *device.definition;
  const auto terminals = portTexts(device);
  Wire wire;
  wire.connection = definition.connection;
  wire.port = device.port == 0
                  ? std::int16_t{0}
                  : static_cast<std::int16_t>(device.port + static_cast<int>(terminal));
  wire.terminal = terminal < terminals.size() ? terminals[terminal] : "";
  wire.device = device.id;
  wire.name = device.name;
  wire.type = definition.name;
  wire.label = device.label;
  wire.use = useOf(document, device, terminal);
  wire.settings = settingsOf(device);
  wire.picture = pictureOf(definition);
  wire.side = sideOf(definition);
  return wire;
}

/// Panels come to the receiver through its network, behind the devices that have addresses there.
Wire wireOfPanel(const DocumentData& document, const DeviceData& panel) {
  Wire wire = wireOf(document, panel, 0);
  wire.connection = Connection::network;
  wire.port = INT16_MAX;
  wire.terminal = "Network";
  return wire;
}

/// A power sensor is no device of its own: it hangs on the module that reads it.
void addSensors(const DocumentData& document, std::vector<Wire>& wires) {
  for (const DevicePtr& device : document.everyDevice()) {
    if (device->sensorHandle == 0) continue;
    // The format names the input: "i4" is digital input 4.
    const std::string& format = device->sensorFormat;
    const bool isInput = format.size() == 2 && format[0] == 'i';
    Wire wire;
    wire.connection = Connection::sensor;
    wire.port = isInput ? static_cast<std::int16_t>(format[1] - '0') : std::int16_t{0};
    wire.terminal = isInput ? "Digital Input " + format.substr(1) : format;
    wire.device = device->id;
    wire.name = document.shownName(device->parent);
    wire.type = "Power Sensor";
    wire.use = "mains current of the display";
    wire.picture = "power-sensor.svg";
    wire.side = Wire::Side::source;
    wires.push_back(std::move(wire));
  }
}

void addDevices(const DocumentData& document, std::vector<Wire>& wires) {
  for (const DevicePtr& device : document.devices) {
    if (device->id == document.controlSystem) continue;
    const auto taken = static_cast<std::size_t>(device->definition->portsTaken());
    for (std::size_t i = 0; i < taken; ++i) wires.push_back(wireOf(document, *device, i));
  }
}

}  // namespace

std::vector<Wire> wiringOf(const DocumentData& document) {
  std::vector<Wire> wires;
  addDevices(document, wires);
  addSensors(document, wires);
  for (const DevicePtr& panel : document.panels) {
    wires.push_back(wireOfPanel(document, *panel));
  }
  std::stable_sort(wires.begin(), wires.end(), [](const Wire& one, const Wire& other) {
    return std::tuple(groupOf(one.connection), one.port) <
           std::tuple(groupOf(other.connection), other.port);
  });
  return wires;
}

}  // namespace trellisar
