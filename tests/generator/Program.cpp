#include "tests/generator/Program.h"

#include "host/Numbers.h"
#include "trellisar/Listing.h"

namespace tests {
namespace {

using trellisar::PresetData;
using trellisar::StepData;

class Reader {
 public:
  explicit Reader(const trellisar::DocumentData& document) : document_(document) {}

  Program read() {
    for (const auto& preset : document_.presets) put(preset->name, steps(*preset));
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
    return program_;
  }

 private:
  void readParts(const trellisar::DeviceData& device) {
    for (const auto& slot : device.slots) {
      if (slot->command.empty()) continue;
      const std::string target = slot->device == 0 ? "" : nameOf(slot->device) + ".";
      put(nameOf(device.id) + " slot " + slot->name, target + slot->command);
    }
    for (const auto& signal : device.signals) {
      if (signal->enabledEvents == 0) continue;
      put(nameOf(device.id) + "." + signal->row.output + " events",
          std::to_string(signal->enabledEvents));
    }
    for (const auto& [name, value] : device.properties) {
      put(nameOf(device.id) + " is " + name, value);
    }
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
    return nameOf(test.get_DeviceID()) + "." + test.get_SignalName() +
           (test.get_StateName().empty() ? "=" : " " + test.get_StateName() + "=") +
           std::to_string(test.get_Value());
  }

  std::string step(const StepData& step) const {
    switch (step.kind) {
      case host::stepCallPreset:
        return "call " + document_.findPreset(step.target)->name;
      case host::stepDelay:
        return nameOf(step.target) + " waits " + step.value;
      case host::stepConditional:
        return "if " + test(*step.condition) + " { " + steps(*step.branch) + " }";
      default:
        return nameOf(step.target) + "." + step.signal + (step.value.empty() ? "" : "~") +
               step.value;
    }
  }

  const trellisar::DocumentData& document_;
  Program program_;
};

}  // namespace

Program programOf(const trellisar::DocumentData& document) { return Reader(document).read(); }

}  // namespace tests
