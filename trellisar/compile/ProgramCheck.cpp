#include "trellisar/compile/ProgramCheck.h"

#include "host/Numbers.h"
#include "trellisar/document/StepRules.h"

namespace trellisar {
namespace {

std::string inQuotes(const std::string& text) { return "\"" + text + "\""; }

const char* kindOf(const DeviceData& device) {
  switch (device.kind) {
    case DeviceData::Kind::module:
      return "module ";
    case DeviceData::Kind::panel:
      return "touch panel ";
    case DeviceData::Kind::device:
      break;
  }
  return "device ";
}

/// A test looks at what a device reports, and at the level that was last sent to it.
bool canBeTested(const Definition& definition, const std::string& signal) {
  return definition.hasSignal(signal, host::directionOutput, host::signalDigital) ||
         definition.hasSignal(signal, host::directionInput, host::signalDigital);
}

}  // namespace

ProgramCheck::ProgramCheck(const DocumentData& document) : document_(document) {
  for (const auto& preset : document.presets) {
    parts_.emplace_back([this, preset] {
      preset_ = preset->name;
      checkSteps(*preset, "preset " + inQuotes(preset->name) + ", step ", "");
    });
  }
  for (const ProgrammedEvent& event : programmedEvents(document)) {
    parts_.emplace_back([this, event] { checkEvent(event); });
  }
  for (const auto& [device, signal] : fedSignals(document)) {
    parts_.emplace_back([this, name = device, data = signal] { checkSource(name, *data); });
  }
  for (const DevicePtr& device : document.everyDevice()) {
    if (device->kind != DeviceData::Kind::module) continue;
    parts_.emplace_back([this, device] { checkSlots(*device); });
  }
}

bool ProgramCheck::next() {
  if (done_ == parts_.size()) return false;
  preset_.clear();
  parts_[done_++]();
  return true;
}

void ProgramCheck::fail(const std::string& place, const std::string& what, std::int16_t device) {
  errors_.push_back({place + ": " + what + ".", {.iDeviceID = device, .strPreset = preset_}});
}

void ProgramCheck::checkSteps(const PresetData& preset, const std::string& place,
                              const std::string& number) {
  eachStep(preset, [&](const Step& step, int count) {
    const std::string own = number + std::to_string(count);
    std::visit(ForStep{[&](const CommandStep& command) { checkCommand(command, place + own); },
                       [&](const DelayStep& delay) { checkTarget(delay.data, place + own); },
                       [&](const CallStep& call) { checkCall(call, place + own); },
                       [&](const BranchStep& branch) {
                         checkCondition(branch, place + own);
                         checkSteps(branch.branch(), place, own + ".");
                       }},
               step);
  });
}

bool ProgramCheck::checkTarget(const StepData& step, const std::string& place) {
  if (isTargetThere(document_, step.targetType, step.target)) return true;
  fail(place, "its device is not in the system");
  return false;
}

void ProgramCheck::checkCall(const CallStep& step, const std::string& place) {
  if (isTargetThere(document_, host::targetPreset, step.preset())) return;
  fail(place, "it calls a preset that is not in the system");
}

void ProgramCheck::checkCommand(const CommandStep& step, const std::string& place) {
  if (!checkTarget(step.data, place)) return;
  const std::string& signal = step.data.signal;
  const DevicePtr device = document_.find(static_cast<std::int16_t>(step.data.target));
  if (device->definition->hasSignal(signal, host::directionInput, step.signalType)) return;
  fail(place,
       std::string("the ") + kindOf(*device) + inQuotes(document_.shownName(device->id)) +
           " has no command " + inQuotes(signal),
       device->id);
}

void ProgramCheck::checkCondition(const BranchStep& step, const std::string& place) {
  if (!step.condition()) return fail(place, "it has no condition");
  const DevicePtr device = document_.find(step.condition()->get_DeviceID());
  if (!device) return fail(place, "it tests a device that is not in the system");
  const std::string& signal = step.condition()->get_SignalName();
  if (canBeTested(*device->definition, signal)) return;
  fail(place,
       "it tests " + inQuotes(signal) + ", which the " + kindOf(*device) +
           inQuotes(document_.shownName(device->id)) + " does not have",
       device->id);
}

void ProgramCheck::checkEvent(const ProgrammedEvent& event) {
  const std::string place = "event " + inQuotes(event.signal) + " of " + inQuotes(event.device) +
                            (event.event == host::eventHigh ? " goes on" : " goes off");
  const SignalRow& row = event.data->row;
  SignalRow found;
  const DevicePtr device = document_.find(event.data->deviceId);
  if (!device->definition->findRow(row.output, row.input, row.type, found)) {
    fail(place, std::string("the ") + kindOf(*device) + "has no such signal", device->id);
  }
  checkSteps(*event.preset, place + ", step ", "");
}

void ProgramCheck::checkSource(const std::string& name, const SignalData& signal) {
  const std::string& own = signal.row.input.empty() ? signal.row.output : signal.row.input;
  const std::string place = "source of " + inQuotes(own) + " of " + inQuotes(name);
  SignalRow found;
  const DevicePtr device = document_.find(signal.deviceId);
  if (!device->definition->findRow(signal.row.output, signal.row.input, signal.row.type, found)) {
    fail(place, std::string("the ") + kindOf(*device) + "has no such signal", device->id);
  }
  const DevicePtr source = document_.find(signal.sourceDevice);
  if (!source) return fail(place, "the device that feeds it is not in the system");
  const std::string& fed = signal.sourceSignal;
  if (source->definition->hasSignal(fed, host::directionOutput, signal.row.type)) return;
  fail(place,
       std::string("the ") + kindOf(*source) + inQuotes(document_.shownName(source->id)) +
           " has no signal " + inQuotes(fed),
       source->id);
}

void ProgramCheck::checkSlots(const DeviceData& module) {
  for (const auto& slot : module.slots) {
    if (slot->command.empty()) continue;
    const std::string place =
        "module " + inQuotes(document_.shownName(module.id)) + ", slot " + inQuotes(slot->name);
    // A slot without a device of its own sends to the device that its module belongs to.
    const DevicePtr device = document_.find(slot->device != 0 ? slot->device : module.parent);
    if (!device) {
      fail(place, "its device is not in the system");
    } else if (!device->definition->hasSignal(slot->command, host::directionInput,
                                              host::signalDigital)) {
      fail(place,
           std::string("the ") + kindOf(*device) + inQuotes(document_.shownName(device->id)) +
               " has no command " + inQuotes(slot->command),
           device->id);
    }
  }
}

std::vector<std::string> programErrors(const DocumentData& document) {
  ProgramCheck check(document);
  while (check.next()) {
  }
  std::vector<std::string> texts;
  for (const ProgramError& error : check.errors()) texts.push_back(error.text);
  return texts;
}

}  // namespace trellisar
