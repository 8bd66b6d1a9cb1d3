#include "trellisar/compile/Listing.h"

#include <algorithm>
#include <tuple>

#include "forms/Numbers.h"
#include "host/Numbers.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/Explained.h"
#include "trellisar/document/Steps.h"

namespace trellisar {
namespace {

class Lister {
 public:
  /// Without reasons, the listing tells none.
  Lister(const DocumentData& document, const Reasons* reasons)
      : document_(document), reasons_(reasons) {}

  base::Json list() const {
    base::Json json;
    json["name"] = document_.name;
    json["folder"] = document_.folder;
    json["application"] = document_.application;
    json["program_is_current"] = isProgramCurrent(document_);
    json["settings"] = settings();
    json["receiver"] = receiver();
    json["devices"] = base::Json::array();
    for (const DevicePtr& device : listedDevices(document_))
      json["devices"].push_back(item(*device));
    json["touch_panels"] = panels();
    json["bill_of_materials"] = bill();
    json["presets"] = presets();
    json["events"] = events();
    json["sources"] = sources();
    return json;
  }

 private:
  /// The block of the add-in that saved the system, or else the first.
  std::string settings() const {
    for (const auto& [title, text] : document_.settings) {
      if (title == document_.application) return text;
    }
    return document_.settings.empty() ? std::string() : document_.settings.front().second;
  }

  base::Json receiver() const {
    const DevicePtr device = document_.find(document_.controlSystem);
    return {{"name", device->name}, {"model", device->definition->modelId}};
  }

  static base::Json properties(const DeviceData& device) {
    base::Json json = base::Json::object();
    for (const auto& [name, value] : device.properties) json[name] = value;
    return json;
  }

  base::Json item(const DeviceData& device) const {
    base::Json json;
    json["name"] = device.name;
    json["parent"] = document_.shownName(device.parent);
    json["type"] = chosenType(device);
    json["label"] = device.label;
    json["model"] = device.definition->modelId;
    json["control_entry"] = device.definition->controlEntry;
    json["shown"] = device.shown;
    json["power_control"] = device.powerControl;
    json["standard_commands"] = base::Json::object();
    for (const auto& command : device.standardCommands) {
      json["standard_commands"][forms::decimal(command->get_StandardID())] =
          command->get_CommandName();
    }
    json["properties"] = properties(device);
    json["modules"] = base::Json::array();
    for (const DevicePtr& module : device.modules) json["modules"].push_back(this->module(*module));
    return explained(json, &device);
  }

  base::Json explained(base::Json json, Piece piece) const {
    if (!reasons_) return json;
    const auto reason = reasons_->find(piece);
    const bool isFound = reason != reasons_->end();
    json["answers"] = isFound ? reason->second.answers : std::vector<std::string>();
    if (isFound && reason->second.isLeftOver) json["left_over"] = true;
    return json;
  }

  base::Json module(const DeviceData& module) const {
    base::Json json;
    json["short_name"] = module.shortName;
    json["shown"] = module.shown;
    json["properties"] = properties(module);
    json["slots"] = base::Json::array();
    for (const auto& slot : module.slots) {
      json["slots"].push_back({{"name", slot->name},
                               {"device", document_.shownName(slot->device)},
                               {"command", slot->command}});
    }
    return explained(json, &module);
  }

  base::Json panels() const {
    base::Json list = base::Json::array();
    for (const DevicePtr& panel : document_.panels) {
      list.push_back(explained({{"name", panel->name},
                                {"project_panel", panel->definition->projectPanel},
                                {"project_built", panel->projectBuilt}},
                               panel.get()));
    }
    return list;
  }

  base::Json billLine(const std::string& device, const BillLine& line, bool isMain) const {
    return explained(
        {{"device", device}, {"part", line.part}, {"quantity", line.quantity}, {"main", isMain}},
        &line);
  }

  base::Json bill() const {
    base::Json list = base::Json::array();
    for (const auto& entry : document_.bill) {
      const std::string device = billDevice(document_, *entry);
      list.push_back(billLine(device, entry->main, true));
      for (const BillLine& line : entry->parts) list.push_back(billLine(device, line, false));
    }
    return list;
  }

  base::Json presets() const {
    base::Json list = base::Json::array();
    for (const auto& preset : document_.presets) {
      list.push_back(explained(
          {{"name", preset->name}, {"comment", preset->comment}, {"steps", steps(*preset)}},
          preset.get()));
    }
    return list;
  }

  base::Json events() const {
    base::Json list = base::Json::array();
    for (const ProgrammedEvent& event : programmedEvents(document_)) {
      list.push_back(explained({{"device", event.device},
                                {"output", event.signal},
                                {"event", event.event},
                                {"steps", steps(*event.preset)}},
                               event.preset));
    }
    return list;
  }

  base::Json sources() const {
    base::Json list = base::Json::array();
    for (const auto& [device, signal] : fedSignals(document_)) {
      list.push_back(explained({{"device", device},
                                {"input", signal->row.input},
                                {"output", signal->row.output},
                                {"from", document_.shownName(signal->sourceDevice)},
                                {"signal", signal->sourceSignal}},
                               signal));
    }
    return list;
  }

  base::Json steps(const PresetData& preset) const {
    base::Json list = base::Json::array();
    eachStep(preset, [&](const Step& each, int) { list.push_back(step(each)); });
    return list;
  }

  base::Json step(const Step& step) const {
    base::Json json;
    json["kind"] = std::visit([](const auto& any) { return any.data.kind; }, step);
    std::visit(ForStep{[&](const CommandStep& command) { addSending(json, command.data); },
                       [&](const DelayStep& delay) { addSending(json, delay.data); },
                       [&](const CallStep& call) {
                         json["preset"] = document_.findPreset(call.preset())->name;
                       },
                       [&](const BranchStep& branch) {
                         json["when"] =
                             condition(branch.condition().value_or(host::StepCondition()));
                         json["steps"] = steps(branch.branch());
                       }},
               step);
    return explained(json, pieceOf(step));
  }

  void addSending(base::Json& json, const StepData& step) const {
    json["target_type"] = step.targetType;
    json["target"] = document_.shownName(static_cast<std::int16_t>(step.target));
    json["signal"] = step.signal;
    if (!step.value.empty()) json["value"] = step.value;
  }

  base::Json condition(const host::StepCondition& condition) const {
    return {{"device", document_.shownName(condition.get_DeviceID())},
            {"type", condition.get_ConditionType()},
            {"signal", condition.get_SignalName()},
            {"state", condition.get_StateName()},
            {"compare", condition.get_Compare()},
            {"value", condition.get_Value()}};
  }

  const DocumentData& document_;
  const Reasons* reasons_;
};

}  // namespace

base::Json listing(const DocumentData& document) { return Lister(document, nullptr).list(); }

base::Json explainedListing(const DocumentData& document, const Reasons& reasons) {
  return Lister(document, &reasons).list();
}

std::vector<ProgrammedEvent> programmedEvents(const DocumentData& document) {
  std::vector<ProgrammedEvent> events;
  for (const DevicePtr& device : document.everyDevice()) {
    for (const auto& signal : device->signals) {
      const std::string& name = signal->row.output.empty() ? signal->row.input : signal->row.output;
      for (std::size_t i = 0; i < signal->events.size(); ++i) {
        const PresetData* preset = signal->events[i].get();
        if (!preset || preset->steps.empty()) continue;
        events.push_back({document.shownName(device->id), name, static_cast<std::int16_t>(i),
                          preset, signal.get()});
      }
    }
  }
  std::stable_sort(events.begin(), events.end(), [](const auto& a, const auto& b) {
    return std::tie(a.device, a.signal, a.event) < std::tie(b.device, b.signal, b.event);
  });
  return events;
}

std::vector<std::pair<std::string, const SignalData*>> fedSignals(const DocumentData& document) {
  std::vector<std::pair<std::string, const SignalData*>> fed;
  for (const DevicePtr& device : document.everyDevice()) {
    const auto first = static_cast<std::ptrdiff_t>(fed.size());
    for (const auto& signal : device->signals) {
      if (signal->sourceType != host::sourceSignal) continue;
      fed.emplace_back(document.shownName(device->id), signal.get());
    }
    const auto table = device->definition->signalTable();
    std::stable_sort(fed.begin() + first, fed.end(), [&table](const auto& a, const auto& b) {
      const auto row = [&table](const SignalData* signal) {
        return std::find(table.begin(), table.end(), signal->row);
      };
      return row(a.second) < row(b.second);
    });
  }
  return fed;
}

std::vector<DevicePtr> listedDevices(const DocumentData& document) {
  std::vector<DevicePtr> devices = document.devices;
  std::stable_partition(devices.begin(), devices.end(), [&document](const DevicePtr& device) {
    return device->id == document.controlSystem;
  });
  return devices;
}

std::string chosenType(const DeviceData& device) {
  if (device.definition->form != Definition::Form::device) return {};
  switch (device.definition->controlEntry) {
    case host::entryPowerRelay:
    case host::entryDigitalInput:
    case host::entryMotionDetector:
    case host::entryKestrum:
      return {};
    default:
      return device.definition->name;
  }
}

std::string billDevice(const DocumentData& document, const BillEntryData& entry) {
  if (entry.key < 0) return document.shownName(forms::toInt16(-static_cast<double>(entry.key)));
  const DevicePtr device = document.findByHandle(forms::toInt16(entry.key));
  return device ? device->name : std::string();
}

}  // namespace trellisar
