#include <algorithm>
#include <tuple>

#include "host/Numbers.h"
#include "trellisar/Listing.h"
#include "trellisar/Provisioning.h"
#include "trellisar/Report.h"

namespace trellisar {
namespace {

using Connection = Definition::Connection;

/// A device of the system that has the part; nothing when there is none.
DefinitionPtr definitionOfPart(const DocumentData& document, std::int32_t part) {
  for (const DevicePtr& device : document.everyDevice()) {
    if (part != 0 && device->definition->part == part) return device->definition;
  }
  return nullptr;
}

std::vector<std::string> billRow(const DocumentData& document, const std::string& device,
                                 const BillLine& line) {
  // A part number of 0 says that a thing is there and has none.
  const std::string part = line.part == 0 ? "-" : std::to_string(line.part);
  const std::string quantity = std::to_string(line.quantity);
  if (line.part == host::partPowerSensor) {
    return {part, quantity, device, "", "Power Sensor", "Current sensor around a mains lead."};
  }
  const DefinitionPtr known = definitionOfPart(document, line.part);
  if (!known) return {part, quantity, device, "", "", ""};
  return {part, quantity, device, known->maker, known->model, known->description};
}

/// Groups the sheet as the receiver's back is: links, network, ports, relays, inputs.
int groupOf(Connection connection) {
  constexpr Connection order[] = {Connection::link,     Connection::network, Connection::serial,
                                  Connection::infrared, Connection::relay,   Connection::contact};
  const Connection shared = connection == Connection::sensor ? Connection::contact : connection;
  return static_cast<int>(std::find(std::begin(order), std::end(order), shared) -
                          std::begin(order));
}

struct Wire {
  int group;
  std::int16_t port;
  std::vector<std::string> row;
};

Wire wireOf(const DocumentData& document, const DeviceData& device) {
  const Definition& definition = *device.definition;
  const DevicePtr parent = document.find(device.parent);
  return {groupOf(definition.connection),
          device.port,
          {portText(device), connectionName(definition.connection), device.name, definition.name,
           device.label, device.address, parent ? parent->name : ""}};
}

/// A power sensor is no device of its own: it hangs on the module that reads it.
void addSensors(const DocumentData& document, std::vector<Wire>& wires) {
  for (const DevicePtr& device : document.everyDevice()) {
    if (device->sensorHandle == 0) continue;
    // The format names the input: "i4" is digital input 4.
    const std::string& format = device->sensorFormat;
    const bool isInput = format.size() == 2 && format[0] == 'i';
    const std::string port = isInput ? "Digital Input " + format.substr(1) : format;
    const auto number = isInput ? static_cast<std::int16_t>(format[1] - '0') : std::int16_t{0};
    const DevicePtr receiver = document.find(document.controlSystem);
    wires.push_back({groupOf(Connection::sensor),
                     number,
                     {port, connectionName(Connection::sensor), document.shownName(device->parent),
                      "Power Sensor", "", "", receiver->name}});
  }
}

}  // namespace

Report billOfMaterials(const DocumentData& document) {
  Report report{reportBillOfMaterials,
                document.name,
                {"Part", "Quantity", "Device", "Maker", "Model", "Description"},
                {}};
  for (const auto& entry : document.bill) {
    const std::string device = billDevice(document, *entry);
    report.rows.push_back(billRow(document, device, entry->main));
    for (const BillLine& line : entry->parts) {
      report.rows.push_back(billRow(document, device, line));
    }
  }
  return report;
}

Report connectionSheet(const DocumentData& document) {
  Report report{reportConnectionSheet,
                document.name,
                {"Port", "Connection", "Device", "Type", "Label", "Address", "Connected to"},
                {}};
  std::vector<Wire> wires;
  for (const DevicePtr& device : document.devices) {
    if (device->id != document.controlSystem) wires.push_back(wireOf(document, *device));
  }
  addSensors(document, wires);
  for (const DevicePtr& panel : document.panels) wires.push_back(wireOf(document, *panel));
  std::stable_sort(wires.begin(), wires.end(), [](const Wire& one, const Wire& other) {
    return std::tie(one.group, one.port) < std::tie(other.group, other.port);
  });
  for (Wire& wire : wires) report.rows.push_back(std::move(wire.row));
  return report;
}

}  // namespace trellisar
