#pragma once

#include <cstdint>
#include <string>

#include "host/Numbers.h"
#include "host/Program.h"

/// The words in which a sub-builder says a step and a test. Nothing here touches the document.
namespace generator {

/// A step that is to be written; an empty value sets none.
struct NewStep {
  std::int16_t iKind = host::stepDigital;
  std::int32_t lTargetID = 0;
  std::string sSignalName{};
  std::string sValue{};
  std::int16_t iTargetType = host::targetDevice;
};

/// A digital command without a value.
NewStep Command(std::int16_t iDeviceID, const std::string& sCommand);
/// A digital command that is held for a time, given as a time text such as "0.1s".
NewStep Pulse(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sTime);
/// A digital command that sets one of the two levels, host::levelHigh or host::levelLow.
NewStep Level(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sLevel);
NewStep PanelLevel(std::int16_t iPanelID, const std::string& sCommand, const std::string& sLevel);
/// A constant in the document's syntax ("2d").
NewStep Analog(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sConstant);
NewStep Serial(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sText);
/// A delay of whole seconds, kept with the device that it is for.
NewStep Delay(std::int16_t iDeviceID, std::int16_t iSeconds);
NewStep Call(const host::Preset& preset);

/// How long the commands of a display are held.
inline constexpr const char* sDisplayPulse = "0.1s";
/// A setting in seconds as the time text of a pulse.
std::string PulseTime(float sngSeconds);

/// The value, 1 or 0, of a digital output of a device.
host::StepCondition SignalIs(std::int16_t iDeviceID, const std::string& sSignalName,
                             std::int16_t iValue);
host::StepCondition ContactIsOpen(std::int16_t iDeviceID, const std::string& sSignalName);
host::StepCondition ContactIsClosed(std::int16_t iDeviceID, const std::string& sSignalName);

}  // namespace generator
