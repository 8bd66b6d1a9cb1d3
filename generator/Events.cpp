#include "generator/Events.h"

#include "addin/modGlobals.h"
#include "host/Error.h"
#include "host/Numbers.h"

namespace generator {
namespace {

std::int16_t SignalTypeOf(std::int16_t iStepKind) {
  switch (iStepKind) {
    case host::stepAnalog:
      return host::signalAnalog;
    case host::stepSerial:
      return host::signalSerial;
    default:
      return host::signalDigital;
  }
}

}  // namespace

SignalPtr FindOutput(std::int16_t iDeviceID, const std::string& sOutputName) {
  return addin::gDocument().get_Signals()->Find(iDeviceID, sOutputName, "", host::signalDigital);
}

PresetPtr EventPreset(const host::Signal& signal, std::int16_t iEvent) {
  return signal.GetEvent(iEvent)->get_Preset();
}

host::Signal& Existing(const SignalPtr& signal, const std::string& sName) {
  if (signal) return *signal;
  throw host::Error(host::errUnknownKey, "There is no signal \"" + sName + "\" to be programmed.");
}

void FeedFrom(host::Signal& signal, std::int16_t iDeviceID, const std::string& sSignalName) {
  signal.ClearSource();
  signal.put_SourceType(host::sourceSignal);
  signal.put_SourceDeviceID(iDeviceID);
  signal.put_SourceSignalName(sSignalName);
}

void EnableEvents(const host::Signal& signal) {
  if (const auto options = signal.get_Options()) options->EnableEvents(host::eventsAll, true);
}

void ClearEvents(const host::Signal& signal) {
  EventPreset(signal, host::eventHigh)->ClearSteps();
  EventPreset(signal, host::eventLow)->ClearSteps();
}

bool AddCommandToEvent(Run& run, const host::Signal& signal, std::int16_t iEvent,
                       const NewStep& command) {
  if (command.sSignalName.empty()) return false;
  const auto preset = EventPreset(signal, iEvent);
  preset->ClearSteps();
  const auto iDeviceID = static_cast<std::int16_t>(command.lTargetID);
  const auto device = addin::gDocument().get_Devices()->ItemByID(iDeviceID);
  if (!device) return false;
  if (!device->HasSignal(command.sSignalName, host::directionInput, SignalTypeOf(command.iKind))) {
    return run.CannotFindCommand(command.sSignalName, *device);
  }
  return AddStep(*preset, 1, command);
}

bool AddPresetCallToEvent(const host::Signal& signal, std::int16_t iEvent,
                          const std::string& sPreset, bool bClear) {
  if (sPreset.empty()) return false;
  const auto event = EventPreset(signal, iEvent);
  if (bClear) event->ClearSteps();
  const auto called = FindPreset(sPreset);
  return called && AddStep(*event, 1, Call(*called));
}

bool ConnectEventToGlobalPreset(std::int16_t iDeviceID, const std::string& sOutputName,
                                std::int16_t iEvent, const std::string& sPreset, bool bClear) {
  const auto signal = FindOutput(iDeviceID, sOutputName);
  if (!signal || !AddPresetCallToEvent(*signal, iEvent, sPreset, bClear)) return false;
  signal->put_SourceType(host::sourceEvents);
  return true;
}

}  // namespace generator
