#include <algorithm>
#include <utility>

#include "base/Json.h"
#include "host/Numbers.h"
#include "trellisar/document/Steps.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/document/SystemFileFields.h"
#include "trellisar/library/DefinitionJson.h"

namespace trellisar {
namespace {

using Kind = DeviceData::Kind;
using namespace systemFile;

/// The definitions of a document, each once, in the order of their first use.
class Definitions {
 public:
  std::size_t place(const DefinitionPtr& definition) {
    const auto same = [&](const DefinitionPtr& other) {
      return other == definition || *other == *definition;
    };
    const auto found = std::find_if(list_.begin(), list_.end(), same);
    const auto place = static_cast<std::size_t>(found - list_.begin());
    if (found == list_.end()) list_.push_back(definition);
    return place;
  }

  base::Json json() const {
    base::Json list = base::Json::array();
    for (const DefinitionPtr& definition : list_) {
      base::Json item = base::emptyObject(3);
      item["form"] = formName(definition->form);
      if (definition->form != Definition::Form::module) item["maker"] = definition->maker;
      item["definition"] = definitionJson(*definition);
      list.push_back(std::move(item));
    }
    return list;
  }

 private:
  std::vector<DefinitionPtr> list_;
};

class Writer {
 public:
  explicit Writer(const DocumentData& document) : document_(document) {}

  base::Json write() {
    base::Json devices = list(document_.devices);
    base::Json panels = list(document_.panels);
    base::Json json = base::emptyObject(16);
    base::FieldWriter fields(json);
    documentFields(fields, document_);
    json["format"] = format;
    json["version"] = version;
    json["settings"] = base::Json::object();
    for (const auto& [title, text] : document_.settings) json["settings"][title] = text;
    json["definitions"] = definitions_.json();
    json["devices"] = std::move(devices);
    json["touch_panels"] = std::move(panels);
    json["sensor_handles"] = sensorHandles();
    json["bill_of_materials"] = bill();
    json["presets"] = presets();
    return json;
  }

 private:
  base::Json list(const std::vector<DevicePtr>& devices) {
    base::Json items = base::Json::array();
    for (const DevicePtr& device : devices) {
      items.push_back(device->kind == Kind::panel ? panel(*device) : this->device(*device));
    }
    return items;
  }

  /// An id that is not in the document is stored as none.
  std::int16_t known(std::int16_t id) const { return document_.find(id) ? id : std::int16_t{0}; }

  base::Json device(const DeviceData& device) {
    base::Json json = base::emptyObject(22);
    base::FieldWriter fields(json);
    deviceFields(fields, device);
    json["definition"] = definitions_.place(device.definition);
    json["standard_commands"] = standardCommands(device);
    json["properties"] = base::Json::object();
    for (const auto& [name, value] : device.properties) json["properties"][name] = value;
    json["slots"] = slots(device);
    json["signals"] = signals(device);
    if (device.kind == Kind::device) json["modules"] = list(device.modules);
    return json;
  }

  base::Json panel(const DeviceData& panel) {
    base::Json json = base::emptyObject(9);
    base::FieldWriter fields(json);
    panelFields(fields, panel);
    json["definition"] = definitions_.place(panel.definition);
    json["signals"] = signals(panel);
    return json;
  }

  static base::Json standardCommands(const DeviceData& device) {
    base::Json list = base::Json::array();
    for (const auto& command : device.standardCommands) {
      base::Json item = base::emptyObject(3);
      base::FieldWriter fields(item);
      commandFields(fields, StoredCommand{command->get_StandardID(), command->get_CommandName(),
                                          command->get_LibraryID()});
      list.push_back(std::move(item));
    }
    return list;
  }

  base::Json slots(const DeviceData& device) const {
    base::Json list = base::Json::array();
    for (const auto& slot : device.slots) {
      base::Json item = base::emptyObject(3);
      base::FieldWriter fields(item);
      slotFields(fields, *slot);
      item["device"] = known(slot->device);
      list.push_back(std::move(item));
    }
    return list;
  }

  static bool isBlank(const SignalData& signal) {
    const auto hasSteps = [](const auto& event) { return event && !event->steps.empty(); };
    return std::none_of(signal.events.begin(), signal.events.end(), hasSteps) &&
           signal.enabledEvents == 0 && signal.sourceType == 0 && signal.sourceDevice == 0 &&
           signal.sourceSignal.empty();
  }

  base::Json signal(const SignalData& signal) const {
    base::Json json = base::emptyObject(9);
    base::FieldWriter fields(json);
    signalFields(fields, signal);
    json["source_device"] = known(signal.sourceDevice);
    json["events"] = base::Json::array();
    for (const auto& event : signal.events) {
      json["events"].push_back(event ? steps(*event) : base::Json::array());
    }
    return json;
  }

  /// In the order of the signal table, those first that the driver no longer has: the order in
  /// which they were asked for is chance.
  base::Json signals(const DeviceData& device) const {
    std::vector<SignalRow> table = device.definition->signalTable();
    std::vector<std::pair<std::ptrdiff_t, const SignalData*>> stored;
    for (const auto& signal : device.signals) {
      if (isBlank(*signal)) continue;
      const auto row = std::find(table.begin(), table.end(), signal->row);
      stored.emplace_back(row == table.end() ? -1 : row - table.begin(), signal.get());
    }
    std::stable_sort(stored.begin(), stored.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    base::Json list = base::Json::array();
    for (const auto& [row, data] : stored) list.push_back(signal(*data));
    return list;
  }

  base::Json condition(const host::StepCondition& condition) const {
    base::Json json = base::emptyObject(6);
    base::FieldWriter fields(json);
    conditionFields(fields, StoredCondition{condition.get_ConditionType(),
                                            condition.get_SignalName(), condition.get_StateName(),
                                            condition.get_Compare(), condition.get_Value()});
    json["device"] = known(condition.get_DeviceID());
    return json;
  }

  base::Json step(const Step& step) const {
    base::Json json = base::emptyObject(6);
    json["kind"] = std::visit([](const auto& any) { return any.data.kind; }, step);
    std::visit(ForStep{[&](const CommandStep& command) { addSending(json, command.data); },
                       [&](const DelayStep& delay) { addSending(json, delay.data); },
                       [&](const CallStep& call) {
                         json["preset"] = document_.findPreset(call.preset())->name;
                       },
                       [&](const BranchStep& branch) {
                         if (branch.condition()) json["when"] = condition(*branch.condition());
                         json["steps"] = steps(branch.branch());
                       }},
               step);
    return json;
  }

  static void addSending(base::Json& json, const StepData& step) {
    base::FieldWriter fields(json);
    sendingFields(fields, step);
  }

  base::Json steps(const PresetData& preset) const {
    base::Json list = base::Json::array();
    eachStep(preset, [&](const Step& each, int) { list.push_back(step(each)); });
    return list;
  }

  base::Json sensorHandles() const {
    base::Json list = base::Json::array();
    for (const SensorHandle& sensor : document_.sensorHandles) {
      base::Json item = base::emptyObject(3);
      base::FieldWriter fields(item);
      sensorFields(fields, sensor);
      list.push_back(std::move(item));
    }
    return list;
  }

  static base::Json billLine(const BillLine& line) {
    base::Json json = base::emptyObject(2);
    base::FieldWriter fields(json);
    billLineFields(fields, line);
    return json;
  }

  base::Json bill() const {
    base::Json list = base::Json::array();
    for (const auto& entry : document_.bill) {
      base::Json item = base::emptyObject(3);
      base::FieldWriter fields(item);
      billEntryFields(fields, *entry);
      item["main"] = billLine(entry->main);
      item["parts"] = base::Json::array();
      for (const BillLine& line : entry->parts) item["parts"].push_back(billLine(line));
      list.push_back(std::move(item));
    }
    return list;
  }

  base::Json presets() const {
    base::Json list = base::Json::array();
    for (const auto& preset : document_.presets) {
      base::Json item = base::emptyObject(3);
      base::FieldWriter fields(item);
      presetFields(fields, *preset);
      item["steps"] = steps(*preset);
      list.push_back(std::move(item));
    }
    return list;
  }

  const DocumentData& document_;
  Definitions definitions_;
};

}  // namespace

std::string systemFileText(const DocumentData& document) {
  return base::jsonText(Writer(document).write());
}

}  // namespace trellisar
