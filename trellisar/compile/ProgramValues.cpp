#include "trellisar/compile/ProgramValues.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <unordered_map>

#include "forms/Numbers.h"
#include "host/Numbers.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/Steps.h"

namespace trellisar {
namespace {

using Kind = DeviceData::Kind;
using program::Command;
using program::Place;

Command::Type commandType(std::int16_t signalType) {
  if (signalType == host::signalAnalog) return Command::Type::analog;
  return signalType == host::signalSerial ? Command::Type::serial : Command::Type::digital;
}

program::Unit::Kind unitKind(const DeviceData& device) {
  if (device.kind == Kind::module) return program::Unit::Kind::module;
  if (device.kind == Kind::panel) return program::Unit::Kind::panel;
  return device.definition->form == Definition::Form::receiver ? program::Unit::Kind::receiver
                                                               : program::Unit::Kind::device;
}

std::vector<program::Input> inputsOf(const Definition& definition) {
  std::vector<program::Input> inputs;
  for (const SignalRow& row : definition.signalTable()) {
    if (row.input.empty()) continue;
    const CommandDefinition* command = definition.findCommand(row.input);
    inputs.push_back({row.input, commandType(row.type), command ? command->send : std::string()});
  }
  return inputs;
}

std::vector<std::string> outputsOf(const Definition& definition) {
  std::vector<std::string> outputs;
  for (const SignalRow& row : definition.signalTable()) {
    if (!row.output.empty() && row.type == host::signalDigital) outputs.push_back(row.output);
  }
  return outputs;
}

std::map<std::int32_t, std::string> standardCommandsOf(const DeviceData& device) {
  std::set<std::int16_t> ids;
  for (const auto& own : device.standardCommands) ids.insert(own->get_StandardID());
  for (const auto& driver : device.definition->standardCommands) ids.insert(driver.id);
  std::map<std::int32_t, std::string> commands;
  for (const std::int16_t id : ids) {
    std::string command = device.commandFor(id);
    if (!command.empty()) commands.emplace(id, std::move(command));
  }
  return commands;
}

/// Turns a document into the program of a receiver, in which devices, modules and panels are units
/// and presets are places.
class Compiler {
 public:
  explicit Compiler(const DocumentData& document)
      : document_(document), list_(document.everyDevice()) {
    for (const DevicePtr& device : list_) {
      units_.emplace(device->id, static_cast<Place>(units_.size()));
    }
    for (const auto& preset : document.presets) {
      presets_.emplace(preset->id, static_cast<Place>(presets_.size()));
    }
  }

  program::Program compile() const {
    program::Program program;
    program.name = document_.name;
    program.receiver = unit(document_.controlSystem);
    for (const DevicePtr& device : list_) program.units.push_back(unitOf(*device));
    for (const auto& preset : document_.presets) {
      program.presets.push_back({preset->name, steps(*preset)});
    }
    program.events = events();
    program.sources = sources();
    return program;
  }

  Place unit(std::int32_t id) const {
    const auto found = units_.find(id);
    return found == units_.end() ? program::none : found->second;
  }

 private:
  program::Unit unitOf(const DeviceData& device) const {
    const Definition& definition = *device.definition;
    program::Unit unit;
    unit.name = document_.shownName(device.id);
    unit.kind = unitKind(device);
    unit.parent = this->unit(device.parent);
    unit.handle = device.handle;
    unit.driver = definition.name;
    unit.port = portText(device);
    unit.address = device.address;
    if (device.sensorHandle != 0) {
      unit.sensor = program::SensorPort{device.sensorHandle, device.sensorFormat};
    }
    unit.inputs = inputsOf(definition);
    unit.outputs = outputsOf(definition);
    unit.properties = device.properties;
    unit.slots = slots(device);
    unit.standardCommands = standardCommandsOf(device);
    unit.timing = definition.timing;
    unit.staleAfter = definition.staleAfter;
    return unit;
  }

  std::vector<program::Slot> slots(const DeviceData& device) const {
    std::vector<program::Slot> slots;
    for (const auto& slot : device.slots) {
      if (slot->command.empty()) continue;
      const std::int16_t target = slot->device != 0 ? slot->device : device.parent;
      slots.push_back({slot->name, unit(target), slot->command});
    }
    return slots;
  }

  std::vector<program::Step> steps(const PresetData& preset) const {
    std::vector<program::Step> list;
    eachStep(preset, [&](const Step& step, int) {
      list.push_back(
          std::visit([this](const auto& each) { return program::Step{compiled(each)}; }, step));
    });
    return list;
  }

  program::Call compiled(const CallStep& step) const { return {presets_.at(step.preset())}; }

  program::Branch compiled(const BranchStep& step) const {
    return {test(*step.condition()), steps(step.branch())};
  }

  program::Wait compiled(const DelayStep& step) const {
    return {forms::toInt32(forms::leadingNumber(step.data.value))};
  }

  Command compiled(const CommandStep& step) const {
    return {commandType(step.signalType), unit(step.data.target), step.data.signal,
            step.data.value};
  }

  program::Test test(const host::StepCondition& condition) const {
    return {unit(condition.get_DeviceID()), condition.get_ConditionType(),
            condition.get_SignalName(),     condition.get_StateName(),
            condition.get_Compare(),        condition.get_Value()};
  }

  std::vector<program::Event> events() const {
    std::vector<program::Event> list;
    for (const ProgrammedEvent& event : programmedEvents(document_)) {
      list.push_back({unit(event.data->deviceId), event.signal, event.event == host::eventHigh,
                      event.data->enabledEvents, steps(*event.preset)});
    }
    return list;
  }

  std::vector<program::Source> sources() const {
    std::vector<program::Source> list;
    for (const auto& [device, signal] : fedSignals(document_)) {
      list.push_back({unit(signal->deviceId), signal->row.input, signal->row.output,
                      signal->row.type, unit(signal->sourceDevice), signal->sourceSignal});
    }
    return list;
  }

  const DocumentData& document_;
  std::vector<DevicePtr> list_;
  std::unordered_map<std::int32_t, Place> units_;
  std::unordered_map<std::int32_t, Place> presets_;
};

template <typename Named>
Place placeNamed(const std::vector<Named>& list, const std::string& name) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const Named& each) { return each.name == name; });
  return found == list.end() || name.empty() ? program::none
                                             : static_cast<Place>(found - list.begin());
}

bool hasProjectFile(const DocumentData& document, const DeviceData& panel) {
  std::error_code error;
  return panel.definition->projectPanel &&
         std::filesystem::is_regular_file(panelProjectFile(document, panel), error);
}

}  // namespace

program::Program compiledValues(const DocumentData& document) {
  const Compiler compiler(document);
  program::Program program = compiler.compile();
  for (const DevicePtr& panel : document.panels) {
    if (!hasProjectFile(document, *panel)) continue;
    program.units[static_cast<std::size_t>(compiler.unit(panel->id))].pages =
        programPages(readPanelProject(panelProjectFile(document, *panel)), program);
  }
  return program;
}

std::vector<program::Page> programPages(const PanelProject& project,
                                        const program::Program& program) {
  std::vector<program::Page> pages;
  for (const PanelPage& from : project.pages) {
    program::Page page{from.name, {}};
    for (const PanelObject& object : from.objects) {
      if (object.kind != PanelObject::Kind::button) continue;
      program::Button button{object.id, object.text};
      button.unit = placeNamed(program.units, object.device);
      if (button.unit != program::none) button.command = object.command;
      button.preset = placeNamed(program.presets, object.preset);
      page.buttons.push_back(std::move(button));
    }
    pages.push_back(std::move(page));
  }
  return pages;
}

}  // namespace trellisar
