#include <algorithm>
#include <limits>
#include <utility>

#include "base/Digest.h"
#include "base/FileIO.h"
#include "base/Json.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Numbers.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/StepRules.h"
#include "trellisar/document/Steps.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/document/SystemFileFields.h"
#include "trellisar/library/DefinitionJson.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;
using Kind = DeviceData::Kind;
using Form = Definition::Form;

using namespace systemFile;

/// Fills a new document from a file. First everything that can be named is made, then what names
/// it.
class Loader {
 public:
  Loader(DocumentData& document, const base::Json& json, const std::string& file)
      : document_(document), root_(json, file) {}

  void load() {
    readHead();
    root_.at("definitions").each([&](const base::JsonReader& item) { readDefinitionOf(item); });
    root_.at("devices").each(
        [&](const base::JsonReader& item) { readDevice(item, Kind::device, document_.devices); });
    root_.at("touch_panels").each([&](const base::JsonReader& item) { readPanel(item); });
    readControlSystem();
    root_.at("sensor_handles").each([&](const base::JsonReader& item) { readSensorHandle(item); });
    root_.at("bill_of_materials").each([&](const base::JsonReader& item) { readBillEntry(item); });
    root_.at("presets").each([&](const base::JsonReader& item) { readPresetHead(item); });
    readReferences("devices", document_.devices);
    readReferences("touch_panels", document_.panels);
    std::size_t place = 0;
    root_.at("presets").each(
        [&](base::JsonReader item) { readSteps(item.at("steps"), *document_.presets[place++]); });
    root_.finish();
  }

 private:
  void readHead() {
    const base::JsonReader format = root_.at("format");
    if (format.text() != systemFile::format) format.fail("is no Trellisar system");
    const base::JsonReader stored = root_.at("version");
    if (const auto number = stored.integer(1, INT32_MAX); number != version) {
      stored.fail("the file is of version " + std::to_string(number) +
                  "; this program reads version " + std::to_string(version));
    }
    base::FieldReader fields(root_);
    documentFields(fields, document_);
    if (document_.compiledProgram.find_first_of("/\\") != std::string::npos) {
      root_.at("compiled_program").fail("must be the name of a file in the system's folder");
    }
    root_.at("settings").eachKey([&](const std::string& title, const base::JsonReader& text) {
      document_.settings.emplace_back(title, text.text());
    });
  }

  void readDefinitionOf(base::JsonReader reader) {
    const Form form = readForm(reader.at("form"));
    std::string maker;
    if (form != Form::module) maker = reader.at("maker").text();
    definitions_.push_back(
        std::make_shared<const Definition>(readDefinition(reader.at("definition"), form, maker)));
    reader.finish();
  }

  const DefinitionPtr& definition(const base::JsonReader& reader, Kind kind) const {
    const auto place = static_cast<std::size_t>(reader.integer(0, INT32_MAX));
    if (place >= definitions_.size()) reader.fail("there is no such definition");
    const Form form = definitions_[place]->form;
    const bool fits = kind == Kind::panel    ? form == Form::interface
                      : kind == Kind::module ? form == Form::module
                                             : form == Form::device || form == Form::receiver;
    if (!fits) reader.fail("the definition is one of a " + std::string(formName(form)));
    return definitions_[place];
  }

  /// What devices, modules and panels have: an id, a handle and a definition.
  void takeIdentity(base::JsonReader& reader, DeviceData& device) {
    const base::JsonReader id = reader.at("id");
    if (device.id >= document_.nextId) id.fail("must be below \"next_id\"");
    if (document_.find(device.id)) id.fail("the id stands twice");
    const base::JsonReader handle = reader.at("handle");
    if (device.handle >= document_.nextHandle) handle.fail("must be below \"next_handle\"");
    if (document_.findByHandle(device.handle)) handle.fail("the handle stands twice");
    takeDefinition(device, definition(reader.at("definition"), device.kind));
  }

  void readDevice(base::JsonReader reader, Kind kind, std::vector<DevicePtr>& list) {
    auto device = std::make_shared<DeviceData>();
    device->kind = kind;
    base::FieldReader fields(reader);
    deviceFields(fields, *device);
    takeIdentity(reader, *device);
    reader.at("standard_commands").each([&](const base::JsonReader& item) {
      readStandardCommand(item, *device);
    });
    readProperties(reader.at("properties"), *device);
    list.push_back(device);
    document_.enter(device);
    if (kind == Kind::device) {
      reader.at("modules").each(
          [&](const base::JsonReader& item) { readDevice(item, Kind::module, device->modules); });
    }
    reader.finish();
  }

  void readPanel(base::JsonReader reader) {
    auto panel = std::make_shared<DeviceData>();
    panel->kind = Kind::panel;
    base::FieldReader fields(reader);
    panelFields(fields, *panel);
    takeIdentity(reader, *panel);
    panel->description = panel->definition->description;
    panel->maker = panel->definition->maker;
    reader.finish();
    document_.panels.push_back(panel);
    document_.enter(panel);
  }

  static void readStandardCommand(base::JsonReader reader, DeviceData& device) {
    StoredCommand stored;
    base::FieldReader fields(reader);
    commandFields(fields, stored);
    if (device.findStandardCommand(stored.id)) reader.at("id").fail("the id stands twice");
    reader.finish();
    auto command = std::make_shared<host::StandardCommand>();
    command->put_StandardID(stored.id);
    command->put_DeviceID(device.id);
    command->put_Name(std::to_string(stored.id));
    command->put_CommandName(stored.command);
    command->put_LibraryID(stored.libraryId);
    device.standardCommands.push_back(std::move(command));
  }

  static void readProperties(base::JsonReader reader, DeviceData& device) {
    for (auto& [name, value] : device.properties) {
      const base::JsonReader stored = reader.at(name.c_str());
      value = stored.text();
      if (!device.definition->findProperty(name)->takes(value)) {
        stored.fail("\"" + value + "\" is not what the property takes");
      }
    }
    reader.finish();
  }

  void readControlSystem() {
    const base::JsonReader reader = root_.at("control_system");
    const DevicePtr receiver = document_.find(document_.controlSystem, Kind::device);
    if (!receiver || receiver->definition->form != Form::receiver) {
      reader.fail("there is no receiver under this id");
    }
  }

  void readSensorHandle(base::JsonReader reader) {
    SensorHandle sensor;
    base::FieldReader fields(reader);
    sensorFields(fields, sensor);
    reader.finish();
    document_.sensorHandles.push_back(sensor);
  }

  static BillLine readBillLine(base::JsonReader reader) {
    BillLine line;
    base::FieldReader fields(reader);
    billLineFields(fields, line);
    reader.finish();
    return line;
  }

  void readBillEntry(base::JsonReader reader) {
    auto entry = std::make_shared<BillEntryData>();
    base::FieldReader fields(reader);
    billEntryFields(fields, *entry);
    if (document_.findBillEntry(entry->key)) reader.at("key").fail("the key stands twice");
    entry->main = readBillLine(reader.at("main"));
    reader.at("parts").each(
        [&](const base::JsonReader& item) { entry->parts.push_back(readBillLine(item)); });
    reader.finish();
    document_.bill.push_back(std::move(entry));
  }

  void readPresetHead(base::JsonReader reader) {
    const auto preset = document_.makePreset();
    base::FieldReader fields(reader);
    presetFields(fields, *preset);
    const base::JsonReader name = reader.at("name");
    reader.finish();
    if (preset->name.empty()) name.fail("must not be empty");
    if (!document_.addNamedPreset(preset)) name.fail("the name stands twice");
  }

  /// What devices and panels say about others: parents, slots and signals.
  void readReferences(const char* key, const std::vector<DevicePtr>& devices) {
    std::size_t place = 0;
    root_.at(key).each([&](base::JsonReader item) { readReferences(item, devices[place++]); });
  }

  void readReferences(base::JsonReader& reader, const DevicePtr& device) {
    const base::JsonReader parent = reader.at("parent");
    if (device->parent != 0 && !document_.find(device->parent, Kind::device)) {
      parent.fail("there is no device under this id");
    }
    reader.at("signals").each([&](const base::JsonReader& item) { readSignal(item, *device); });
    if (device->kind == Kind::panel) return;
    readSlots(reader.at("slots"), *device);
    if (device->kind == Kind::module) return;
    std::size_t place = 0;
    reader.at("modules").each(
        [&](base::JsonReader item) { readReferences(item, device->modules[place++]); });
  }

  void readSlots(const base::JsonReader& list, DeviceData& device) {
    std::size_t place = 0;
    list.each([&](base::JsonReader reader) {
      if (place >= device.slots.size()) reader.fail("the module has no further slot");
      SlotData& slot = *device.slots[place++];
      const std::string known = slot.name;
      base::FieldReader fields(reader);
      slotFields(fields, slot);
      if (slot.name != known) reader.at("name").fail("must be \"" + known + "\"");
      slot.device = knownDevice(reader.at("device"));
      reader.finish();
    });
    if (place < device.slots.size()) list.fail("\"" + device.slots[place]->name + "\" is missing");
  }

  /// An id of the document, or 0 for none.
  std::int16_t knownDevice(const base::JsonReader& reader) const {
    const std::int16_t id = reader.int16(0);
    if (id != 0 && !document_.find(id)) reader.fail("there is no device under this id");
    return id;
  }

  void readSignal(base::JsonReader reader, DeviceData& device) {
    auto signal = std::make_shared<SignalData>();
    signal->deviceId = device.id;
    base::FieldReader fields(reader);
    signalFields(fields, *signal);
    signal->sourceDevice = knownDevice(reader.at("source_device"));
    for (const auto& other : device.signals) {
      const SignalRow& row = other->row;
      if (row.output == signal->row.output && row.input == signal->row.input &&
          row.type == signal->row.type) {
        reader.fail("the signal stands twice");
      }
    }
    std::size_t event = 0;
    reader.at("events").each([&](const base::JsonReader& steps) {
      if (event >= signal->events.size()) steps.fail("a signal has two events");
      readSteps(steps, *document_.eventPreset(*signal, event++));
    });
    reader.finish();
    device.signals.push_back(std::move(signal));
  }

  void readSteps(const base::JsonReader& list, PresetData& preset) {
    list.each([&](const base::JsonReader& item) {
      auto step = std::make_shared<StepData>();
      step->preset = &preset;
      preset.steps.push_back(step);
      readStep(item, *step);
    });
  }

  void readStep(base::JsonReader reader, StepData& step) {
    const base::JsonReader kind = reader.at("kind");
    step.kind = kind.int16(1);
    const std::optional<Step> form = stepOf(step);
    if (!form) kind.fail("there is no such kind of step");
    std::visit(ForStep{[&](const CommandStep&) { readCommand(reader, step); },
                       [&](const DelayStep&) { readCommand(reader, step); },
                       [&](const CallStep&) { readCall(reader.at("preset"), step); },
                       [&](const BranchStep&) { readBranch(reader, step); }},
               *form);
    reader.finish();
  }

  void readCall(const base::JsonReader& reader, StepData& step) {
    const auto preset = document_.findPreset(reader.text());
    if (!preset) reader.fail("there is no preset \"" + reader.text() + "\"");
    step.targetType = host::targetPreset;
    step.target = preset->id;
  }

  void readBranch(base::JsonReader& reader, StepData& step) {
    if (step.preset->depth >= maximumBranchDepth) {
      reader.fail("more than " + std::to_string(maximumBranchDepth) +
                  " conditional steps stand one inside the other");
    }
    step.targetType = host::targetNone;
    step.branch = document_.makePreset();
    step.branch->depth = step.preset->depth + 1;
    reader.ifPresent("when", [&](base::JsonReader when) {
      StoredCondition stored;
      base::FieldReader fields(when);
      conditionFields(fields, stored);
      host::StepCondition condition;
      condition.put_DeviceID(knownDevice(when.at("device")));
      condition.put_ConditionType(stored.type);
      condition.put_SignalName(stored.signal);
      condition.put_StateName(stored.state);
      condition.put_Compare(stored.compare);
      condition.put_Value(stored.value);
      when.finish();
      step.condition = condition;
    });
    readSteps(reader.at("steps"), *step.branch);
  }

  void readCommand(base::JsonReader& reader, StepData& step) {
    base::FieldReader fields(reader);
    sendingFields(fields, step);
    if (!isTargetThere(document_, step.targetType, step.target)) {
      reader.at("target").fail("there is no device under this id");
    }
  }

  DocumentData& document_;
  base::JsonReader root_;
  std::vector<DefinitionPtr> definitions_;
};

/// The name that a system has: the file's, but spelled as the document has it where that differs in
/// case alone.
std::string systemName(const fs::path& file, const std::string& stored) {
  const std::string stem = file.stem().string();
  return forms::equalsIgnoringCase(stem, stored) ? stored : stem;
}

}  // namespace

DocumentPtr readSystemText(const std::string& text, const std::string& shown,
                           const std::shared_ptr<const DeviceLibrary>& library) {
  return raisingHostErrors([&] {
    const base::Json json = base::parseJson(text, shown);
    auto document = std::make_shared<DocumentData>(library);
    Loader(*document, json, shown).load();
    return document;
  });
}

DocumentPtr readSystemFile(const fs::path& file,
                           const std::shared_ptr<const DeviceLibrary>& library) {
  return raisingHostErrors([&] {
    const std::string text = base::readFile(file);
    const DocumentPtr document = readSystemText(text, file.filename().string(), library);
    document->name = systemName(file, document->name);
    document->ownFile = fs::absolute(file).lexically_normal();
    document->ownDigest = base::Digest::of(text);
    document->folder = forms::fromMachinePath(document->ownFile.parent_path());
    if (!document->folder.ends_with('\\')) document->folder += "\\";
    return document;
  });
}

}  // namespace trellisar
