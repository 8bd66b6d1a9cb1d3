#include <utility>

#include "base/Digest.h"
#include "host/Numbers.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/reports/Report.h"
#include "trellisar/reports/Wiring.h"

namespace trellisar {
namespace {

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

/// A report of the document without a table yet.
Report begun(const DocumentData& document, const char* title, std::vector<std::string> columns,
             const ReportOptions& options) {
  Report report{title, document.name, std::move(columns), {}};
  report.date = options.date;
  report.revision = revisionOf(document);
  return report;
}

}  // namespace

std::string revisionOf(const DocumentData& document) {
  constexpr std::size_t digits = 8;
  const base::Json all = listing(document);
  std::string text = all["settings"].dump() + all["devices"].dump() + all["touch_panels"].dump();
  for (const DevicePtr& device : document.everyDevice()) {
    text += portText(*device) + ";" + device->address + ";" + device->label + ";";
  }
  return base::Digest::of(text).substr(0, digits);
}

Report billOfMaterials(const DocumentData& document, const ReportOptions& options) {
  Report report = begun(document, reportBillOfMaterials,
                        {"Part", "Quantity", "Device", "Maker", "Model", "Description"}, options);
  for (const auto& entry : document.bill) {
    const std::string device = billDevice(document, *entry);
    report.rows.push_back(billRow(document, device, entry->main));
    for (const BillLine& line : entry->parts) {
      report.rows.push_back(billRow(document, device, line));
    }
  }
  return report;
}

Report connectionSheet(const DocumentData& document, const ReportOptions& options) {
  Report report =
      begun(document, reportConnectionSheet,
            {"Terminal", "Signal", "Device", "Type", "Use", "Label", "Settings"}, options);
  for (const Wire& wire : wiringOf(document)) {
    report.rows.push_back({wire.terminal, connectionName(wire.connection), wire.name, wire.type,
                           wire.use, wire.label, wire.settings});
  }
  report.faults = devicesWithoutPort(document);
  report.drawing = drawWiring(document, options.pictures);
  return report;
}

}  // namespace trellisar
