#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "generator/Presets.h"
#include "generator/Run.h"
#include "generator/Steps.h"
#include "host/Program.h"

/// How a sub-builder reaches the signals of the open document and programs their events, which are
/// those of host::enumSignalEvent.
namespace generator {

using SignalPtr = std::shared_ptr<host::Signal>;

/// A digital output; nothing when absent.
SignalPtr FindOutput(std::int16_t iDeviceID, const std::string& sOutputName);
/// For a signal that its device is bound to have: raises host::Error when it was not found.
host::Signal& Existing(const SignalPtr& signal, const std::string& sName);
void FeedFrom(host::Signal& signal, std::int16_t iDeviceID, const std::string& sSignalName);

PresetPtr EventPreset(const host::Signal& signal, std::int16_t iEvent);
void EnableEvents(const host::Signal& signal);
void ClearEvents(const host::Signal& signal);

/// Makes a command all that the event does. False with nothing changed for a command without a
/// name, and with the event left empty when the device or its command is not there.
[[nodiscard]] bool AddCommandToEvent(Run& run, const host::Signal& signal, std::int16_t iEvent,
                                     const NewStep& command);
/// Puts the call of a preset in front of what the event does; with bClear it is all that the event
/// does.
[[nodiscard]] bool AddPresetCallToEvent(const host::Signal& signal, std::int16_t iEvent,
                                        const std::string& sPreset, bool bClear);
/// As AddPresetCallToEvent, for a digital output, which becomes event driven.
[[nodiscard]] bool ConnectEventToGlobalPreset(std::int16_t iDeviceID,
                                              const std::string& sOutputName, std::int16_t iEvent,
                                              const std::string& sPreset, bool bClear);

}  // namespace generator
