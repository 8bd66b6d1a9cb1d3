#include <string>

#include "forms/Numbers.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Numbers.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/Steps.h"

namespace trellisar {
namespace {

/// 500 as "5 s", 10 as "0.1 s".
std::string seconds(const std::string& hundredths) {
  return forms::decimal(static_cast<float>(forms::leadingNumber(hundredths) / 100)) + " s";
}

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

/// The program in words, numbered as a reader would number it: 4.2 is the second step of the branch
/// of step 4.
class ProgramText {
 public:
  explicit ProgramText(const DocumentData& document) : document_(document) {}

  std::string steps(const PresetData& preset, const std::string& number = {},
                    std::size_t level = 1) const {
    std::string text;
    eachStep(preset, [&](const Step& step, int place) {
      const std::string own = number + std::to_string(place) + ".";
      text += std::string(level * 4, ' ') + own + " " + words(step) + "\n";
      const auto* branch = std::get_if<BranchStep>(&step);
      if (branch) text += steps(branch->branch(), own, level + 1);
    });
    return text.empty() ? std::string(level * 4, ' ') + "(nothing)\n" : text;
  }

  std::string words(const Step& step) const {
    return std::visit(ForStep{[&](const CommandStep& command) {
                                const std::string target = targetOf(command.data);
                                return target + ": " + command.data.signal + value(command);
                              },
                              [&](const DelayStep& delay) {
                                return targetOf(delay.data) + ": wait " + seconds(delay.data.value);
                              },
                              [&](const CallStep& call) {
                                return "run " + inQuotes(document_.findPreset(call.preset())->name);
                              },
                              [&](const BranchStep& branch) {
                                const std::string test = condition(branch);
                                return "if " + test + ":";
                              }},
                      step);
  }

 private:
  std::string targetOf(const StepData& step) const {
    return document_.shownName(static_cast<std::int16_t>(step.target));
  }

  static std::string value(const CommandStep& step) {
    const std::string& value = step.data.value;
    if (step.signalType == host::signalAnalog) return " = " + value;
    return step.signalType == host::signalSerial ? " = " + inQuotes(value) : digitalValue(value);
  }

  static std::string digitalValue(const std::string& value) {
    if (value.empty()) return {};
    if (value == host::levelHigh) return " = on";
    if (value == host::levelLow) return " = off";
    return " (held " + seconds(value) + ")";
  }

  std::string condition(const BranchStep& step) const {
    if (!step.condition()) return "always";
    const host::StepCondition& test = *step.condition();
    const std::string what =
        test.get_SignalName() + " of " + document_.shownName(test.get_DeviceID()) + " ";
    if (!test.get_StateName().empty()) return what + forms::lowerCase(test.get_StateName());
    return what + (test.get_Value() != 0 ? "is on" : "is off");
  }

  const DocumentData& document_;
};

class Reader {
 public:
  explicit Reader(const DocumentData& document) : document_(document), program_(document) {}

  std::string text() const {
    return head() + devices() + panels() + bill() + presets() + events() + sources();
  }

 private:
  std::string head() const {
    return inQuotes(document_.name) + " in " + forms::toMachinePath(document_.folder).string() +
           "\n" + "Saved by: " + document_.application + "\n" + "Compiled program: " +
           (document_.compiledProgram.empty() ? "none"
            : isProgramCurrent(document_)     ? "up to date"
                                              : "older than the system") +
           "\n";
  }

  static std::string powerControl(const DeviceData& device) {
    switch (device.powerControl) {
      case host::powerSensing:
        return ", power control: power sensing";
      case host::powerDiscrete:
        return ", power control: discrete commands";
      default:
        return "";
    }
  }

  static std::string properties(const DeviceData& device, const std::string& indent) {
    std::string text;
    for (const auto& [name, value] : device.properties) {
      if (!value.empty()) text += indent + name + ": " + value + "\n";
    }
    return text;
  }

  std::string device(const DeviceData& device) const {
    const Definition& definition = *device.definition;
    const std::string type =
        definition.form == Definition::Form::receiver ? definition.model : chosenType(device);
    std::string text = "    " + device.name;
    if (!type.empty()) text += ": " + type;
    if (!device.label.empty()) text += ", labelled " + inQuotes(device.label);
    for (const std::string& port : portTexts(device)) {
      if (port != device.name) text += ", " + port;
    }
    text += powerControl(device) + "\n" + properties(device, "        ");
    for (const DevicePtr& module : device.modules) {
      text += "        module " + module->shortName + " (" + module->name + ")\n" +
              properties(*module, "            ") + slots(*module);
    }
    return text;
  }

  std::string slots(const DeviceData& module) const {
    std::string text;
    for (const auto& slot : module.slots) {
      const std::string target = document_.shownName(slot->device);
      const std::string command = target.empty() ? slot->command : target + ": " + slot->command;
      text += "            " + slot->name + " sends ";
      text += (slot->command.empty() ? "nothing" : command) + "\n";
    }
    return text;
  }

  std::string devices() const {
    std::string text = "\nDevices\n";
    for (const DevicePtr& item : listedDevices(document_)) text += device(*item);
    for (const std::string& problem : devicesWithoutPort(document_))
      text += "    " + problem + "\n";
    return text;
  }

  std::string panels() const {
    if (document_.panels.empty()) return {};
    std::string text = "\nTouch panels\n";
    for (const DevicePtr& panel : document_.panels) {
      text += "    " + panel->name;
      if (panel->definition->projectPanel) {
        text += panel->projectBuilt ? ", project built" : ", project not built yet";
      }
      text += "\n";
    }
    return text;
  }

  static std::string billLine(const BillLine& line, const char* what) {
    return std::to_string(line.quantity) + " x part " + std::to_string(line.part) + what + "\n";
  }

  std::string bill() const {
    std::string text = "\nBill of materials\n";
    for (const auto& entry : document_.bill) {
      text += "    " + billDevice(document_, *entry) + ": " + billLine(entry->main, "");
      for (const BillLine& line : entry->parts)
        text += "        " + billLine(line, ", further part");
    }
    return text;
  }

  std::string presets() const {
    std::string text = "\nPresets\n";
    for (const auto& preset : document_.presets) {
      text += "  " + inQuotes(preset->name) + "\n" + program_.steps(*preset);
    }
    return text;
  }

  std::string events() const {
    const auto all = programmedEvents(document_);
    if (all.empty()) return {};
    std::string text = "\nEvents\n";
    for (const ProgrammedEvent& event : all) {
      text += "  when " + event.signal + " of " + event.device +
              (event.event == host::eventHigh ? " goes on\n" : " goes off\n") +
              program_.steps(*event.preset);
    }
    return text;
  }

  std::string sources() const {
    const auto fed = fedSignals(document_);
    if (fed.empty()) return {};
    std::string text = "\nSources\n";
    for (const auto& [device, signal] : fed) {
      text += "    " + (signal->row.input.empty() ? signal->row.output : signal->row.input) +
              " of " + device + " follows " + signal->sourceSignal + " of " +
              document_.shownName(signal->sourceDevice) + "\n";
    }
    return text;
  }

  const DocumentData& document_;
  ProgramText program_;
};

}  // namespace

std::string readableText(const DocumentData& document) { return Reader(document).text(); }

}  // namespace trellisar
