#include "tests/generator/Program.h"

#include "host/Numbers.h"
#include "trellisar/compile/Listing.h"

namespace tests {
namespace {

using trellisar::PresetData;
using trellisar::StepData;

class Reader {
 public:
  explicit Reader(const trellisar::DocumentData& document) : document_(document) {}

  Program read() {
    for (const auto& preset : document_.presets) {
      put(preset->name, steps(*preset));
      put(preset->name + " comment", inOneLine(preset->comment));
    }
    for (const auto& event : trellisar::programmedEvents(document_)) {
      put(shortened(event.device) + "." + event.signal + " " + std::to_string(event.event),
          steps(*event.preset));
    }
    for (const auto& [device, signal] : trellisar::fedSignals(document_)) {
      put(device + "." + (signal->row.input.empty() ? signal->row.output : signal->row.input) +
              " <-",
          nameOf(signal->sourceDevice) + "." + signal->sourceSignal);
    }
    for (const auto& device : document_.everyDevice()) readParts(*device);
    for (const auto& entry : document_.bill) readBill(*entry);
    return program_;
  }

 private:
  void readParts(const trellisar::DeviceData& device) {
    const std::string name = nameOf(device.id);
    if (device.kind == trellisar::DeviceData::Kind::module) put(name, moduleText(device));
    for (const auto& slot : device.slots) {
      if (slot->device == 0 && slot->command.empty()) continue;
      const std::string target = slot->device == 0 ? "" : nameOf(slot->device) + ".";
      put(name + " slot " + slot->name, target + slot->command);
    }
    for (const auto& signal : device.signals) {
      if (signal->enabledEvents == 0) continue;
      put(name + "." + signal->row.output + " events", std::to_string(signal->enabledEvents));
    }
    for (const auto& [property, value] : device.properties) put(name + " is " + property, value);
  }

  std::string moduleText(const trellisar::DeviceData& module) const {
    std::string text = (module.shown ? "shown, " : "hidden, ") + module.name;
    for (const auto& sensor : document_.sensorHandles) {
      if (sensor.handle != module.sensorHandle) continue;
      text += ", sensor " + std::to_string(sensor.number) + " of model " +
              std::to_string(sensor.model) + " as " + module.sensorFormat;
    }
    return text;
  }

  void readBill(const trellisar::BillEntryData& entry) {
    std::string text = line(entry.main);
    for (const auto& part : entry.parts) text += " + " + line(part);
    put(trellisar::billDevice(document_, entry) + " bill", text);
  }

  static std::string line(const trellisar::BillLine& line) {
    return std::to_string(line.quantity) + " x " + std::to_string(line.part);
  }

  static std::string inOneLine(std::string text) {
    for (auto at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) {
      text.replace(at, 2, "|");
    }
    return text;
  }

  void put(const std::string& place, const std::string& text) {
    if (!text.empty()) program_[place] = text;
  }

  /// A module by its short name alone.
  static std::string shortened(const std::string& name) {
    return name.substr(name.find('/') == std::string::npos ? 0 : name.find('/') + 1);
  }

  std::string nameOf(std::int32_t id) const {
    const std::string name = shortened(document_.shownName(static_cast<std::int16_t>(id)));
    return name.empty() ? "?" : name;
  }

  std::string steps(const PresetData& preset) const {
    std::string text;
    for (const auto& next : preset.steps) text += (text.empty() ? "" : "; ") + step(*next);
    return text;
  }

  std::string test(const host::StepCondition& test) const {
    const bool isOfState = test.get_ConditionType() == host::conditionNamedState;
    return nameOf(test.get_DeviceID()) + "." + test.get_SignalName() + (isOfState ? " " : "") +
           test.get_StateName() + (test.get_Compare() == host::compareEqual ? "=" : "?") +
           std::to_string(test.get_Value());
  }

  std::string target(const StepData& step) const {
    const auto device = document_.find(static_cast<std::int16_t>(step.target));
    const bool isPanel = device && device->kind == trellisar::DeviceData::Kind::panel;
    return isPanel == (step.targetType == host::targetTouchpanel) ? nameOf(step.target) : "?";
  }

  /// What stands before the value tells the kind of the command.
  static std::string value(const StepData& step) {
    const std::string format =
        step.valueFormat == host::valueFormatInteger ? "" : "?" + std::to_string(step.valueFormat);
    switch (step.kind) {
      case host::stepAnalog:
        return "=" + step.value + format;
      case host::stepSerial:
        return "=\"" + step.value + "\"" + format;
      default:
        return (step.value.empty() ? "" : "~" + step.value) + format;
    }
  }

  std::string step(const StepData& step) const {
    switch (step.kind) {
      case host::stepCallPreset:
        return "call " + document_.findPreset(step.target)->name;
      case host::stepDelay:
        return target(step) + " waits " + step.value;
      case host::stepConditional:
        return "if " + test(*step.condition) + " { " + steps(*step.branch) + " }";
      case host::stepDigital:
      case host::stepAnalog:
      case host::stepSerial:
        return target(step) + "." + step.signal + value(step);
      default:
        return "?";
    }
  }

  const trellisar::DocumentData& document_;
  Program program_;
};

}  // namespace

Program programOf(const trellisar::DocumentData& document) { return Reader(document).read(); }

}  // namespace tests
