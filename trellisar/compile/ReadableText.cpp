#include <string>
#include <vector>

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
  ProgramText(const DocumentData& document, std::vector<TextLine>& lines)
      : document_(document), lines_(lines) {}

  void addSteps(const PresetData& preset, const std::string& number = {},
                std::size_t level = 1) const {
    const std::string indent(level * 4, ' ');
    const std::size_t before = lines_.size();
    eachStep(preset, [&](const Step& step, int place) {
      const std::string own = number + std::to_string(place) + ".";
      lines_.push_back({indent + own + " " + inWords(step), pieceOf(step)});
      const auto* branch = std::get_if<BranchStep>(&step);
      if (branch) addSteps(branch->branch(), own, level + 1);
    });
    if (lines_.size() == before) lines_.push_back({indent + "(nothing)"});
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
  std::vector<TextLine>& lines_;
};

class Reader {
 public:
  explicit Reader(const DocumentData& document) : document_(document), program_(document, lines_) {}

  std::vector<TextLine> lines() {
    addHead();
    addDevices();
    addPanels();
    addBill();
    addPresets();
    addEvents();
    addSources();
    return lines_;
  }

 private:
  void add(const std::string& text, Piece piece = nullptr) { lines_.push_back({text, piece}); }

  void addHeading(const std::string& text) {
    add("");
    add(text);
  }

  void addHead() {
    add(inQuotes(document_.name) + " in " + forms::toMachinePath(document_.folder).string());
    add("Saved by: " + document_.application);
    const char* program = document_.compiledProgram.empty() ? "none"
                          : isProgramCurrent(document_)     ? "up to date"
                                                            : "older than the system";
    add(std::string("Compiled program: ") + program);
  }

  void addProperties(const DeviceData& device, const std::string& indent) {
    for (const auto& property : device.properties) {
      if (property.second.empty()) continue;
      add(indent + property.first + ": " + property.second, &property);
    }
  }

  void addDevice(const DeviceData& device) {
    const std::string type = words::typeOf(device);
    const std::string powerControl = words::powerControlOf(device);
    std::string text = "    " + device.name;
    if (!type.empty()) text += ": " + type;
    if (!device.label.empty()) text += ", labelled " + inQuotes(device.label);
    for (const std::string& port : portTexts(device)) {
      if (port != device.name) text += ", " + port;
    }
    if (!powerControl.empty()) text += ", power control: " + powerControl;
    add(text, headOf(device));
    addProperties(device, "        ");
    for (const DevicePtr& module : device.modules) {
      add("        module " + module->shortName + " (" + module->name + ")", headOf(*module));
      addProperties(*module, "            ");
      addSlots(*module);
    }
  }

  void addSlots(const DeviceData& module) {
    for (const auto& slot : module.slots) {
      const std::string target = words::slotTarget(document_, *slot);
      add("            " + slot->name + " sends " + target, slot.get());
    }
  }

  void addDevices() {
    addHeading("Devices");
    for (const DevicePtr& item : listedDevices(document_)) addDevice(*item);
    for (const std::string& problem : devicesWithoutPort(document_)) add("    " + problem);
  }

  void addPanels() {
    if (document_.panels.empty()) return;
    addHeading("Touch panels");
    for (const DevicePtr& panel : document_.panels) {
      std::string text = "    " + panel->name;
      if (panel->definition->projectPanel) {
        text += panel->projectBuilt ? ", project built" : ", project not built yet";
      }
      add(text, headOf(*panel));
    }
  }

  void addBill() {
    addHeading("Bill of materials");
    for (const auto& entry : document_.bill) {
      const std::string device = billDevice(document_, *entry);
      add("    " + device + ": " + words::billLine(entry->main), &entry->main);
      for (const BillLine& line : entry->parts) {
        add("        " + words::billLine(line) + ", further part", &line);
      }
    }
  }

  void addPresets() {
    addHeading("Presets");
    for (const auto& preset : document_.presets) {
      add("  " + inQuotes(preset->name), preset.get());
      program_.addSteps(*preset);
    }
  }

  void addEvents() {
    const auto all = programmedEvents(document_);
    if (all.empty()) return;
    addHeading("Events");
    for (const ProgrammedEvent& event : all) {
      add("  " + words::eventOf(event), event.preset);
      program_.addSteps(*event.preset);
    }
  }

  void addSources() {
    const auto fed = fedSignals(document_);
    if (fed.empty()) return;
    addHeading("Sources");
    for (const auto& [device, signal] : fed) {
      add("    " + words::fedSignal(device, *signal) + " follows " +
              words::sourceOf(document_, *signal),
          signal);
    }
  }

  const DocumentData& document_;
  std::vector<TextLine> lines_;
  ProgramText program_;
};

}  // namespace

std::vector<TextLine> readableLines(const DocumentData& document) {
  return Reader(document).lines();
}

std::string readableText(const DocumentData& document) {
  std::string text;
  for (const TextLine& line : readableLines(document)) text += line.text + "\n";
  return text;
}

}  // namespace trellisar
