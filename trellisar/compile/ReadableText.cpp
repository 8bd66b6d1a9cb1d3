#include <string>

#include "forms/Paths.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/compile/Words.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/Steps.h"

namespace trellisar {
namespace {

using words::inQuotes;

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
      text += std::string(level * 4, ' ') + own + " " + inWords(step) + "\n";
      const auto* branch = std::get_if<BranchStep>(&step);
      if (branch) text += steps(branch->branch(), own, level + 1);
    });
    return text.empty() ? std::string(level * 4, ' ') + "(nothing)\n" : text;
  }

  std::string inWords(const Step& step) const {
    return std::visit(ForStep{[&](const CommandStep& command) {
                                const std::string target = words::targetOf(document_, command.data);
                                return target + ": " + command.data.signal +
                                       words::valueOf(command);
                              },
                              [&](const DelayStep& delay) {
                                const std::string target = words::targetOf(document_, delay.data);
                                return target + ": wait " + words::seconds(delay.data.value);
                              },
                              [&](const CallStep& call) {
                                return "run " + inQuotes(document_.findPreset(call.preset())->name);
                              },
                              [&](const BranchStep& branch) {
                                const std::string test = words::conditionOf(document_, branch);
                                return "if " + test + ":";
                              }},
                      step);
  }

 private:
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

  static std::string properties(const DeviceData& device, const std::string& indent) {
    std::string text;
    for (const auto& [name, value] : device.properties) {
      if (!value.empty()) text += indent + name + ": " + value + "\n";
    }
    return text;
  }

  std::string device(const DeviceData& device) const {
    const std::string type = words::typeOf(device);
    const std::string powerControl = words::powerControlOf(device);
    std::string text = "    " + device.name;
    if (!type.empty()) text += ": " + type;
    if (!device.label.empty()) text += ", labelled " + inQuotes(device.label);
    for (const std::string& port : portTexts(device)) {
      if (port != device.name) text += ", " + port;
    }
    if (!powerControl.empty()) text += ", power control: " + powerControl;
    text += "\n";
    text += properties(device, "        ");
    for (const DevicePtr& module : device.modules) {
      text += "        module " + module->shortName + " (" + module->name + ")\n" +
              properties(*module, "            ") + slots(*module);
    }
    return text;
  }

  std::string slots(const DeviceData& module) const {
    std::string text;
    for (const auto& slot : module.slots) {
      text += "            " + slot->name + " sends " + words::slotTarget(document_, *slot) + "\n";
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

  std::string bill() const {
    std::string text = "\nBill of materials\n";
    for (const auto& entry : document_.bill) {
      text += "    " + billDevice(document_, *entry) + ": " + words::billLine(entry->main) + "\n";
      for (const BillLine& line : entry->parts)
        text += "        " + words::billLine(line) + ", further part\n";
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
      text += "  " + words::eventOf(event) + "\n" + program_.steps(*event.preset);
    }
    return text;
  }

  std::string sources() const {
    const auto fed = fedSignals(document_);
    if (fed.empty()) return {};
    std::string text = "\nSources\n";
    for (const auto& [device, signal] : fed) {
      text += "    " + words::fedSignal(device, *signal) + " follows " +
              words::sourceOf(document_, *signal) + "\n";
    }
    return text;
  }

  const DocumentData& document_;
  ProgramText program_;
};

}  // namespace

std::string readableText(const DocumentData& document) { return Reader(document).text(); }

}  // namespace trellisar
