#include "generator/Steps.h"

#include "addin/modGlobals.h"
#include "forms/Numbers.h"

namespace generator {
namespace {

constexpr std::int16_t iTimeFormat = 0;

std::string Hundredths(const std::string& sTime) {
  return forms::decimal(addin::gOwnerForm().GetHSeconds(sTime, iTimeFormat));
}

host::StepCondition NamedState(std::int16_t iDeviceID, const std::string& sSignalName,
                               const std::string& sStateName, std::int16_t iValue) {
  host::StepCondition test;
  test.put_DeviceID(iDeviceID);
  test.put_ConditionType(host::conditionNamedState);
  test.put_SignalName(sSignalName);
  test.put_StateName(sStateName);
  test.put_Compare(host::compareEqual);
  test.put_Value(iValue);
  return test;
}

}  // namespace

NewStep Command(std::int16_t iDeviceID, const std::string& sCommand) {
  return {.iKind = host::stepDigital, .lTargetID = iDeviceID, .sSignalName = sCommand};
}

NewStep Pulse(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sTime) {
  return {.iKind = host::stepDigital,
          .lTargetID = iDeviceID,
          .sSignalName = sCommand,
          .sValue = Hundredths(sTime)};
}

NewStep Level(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sLevel) {
  return {.iKind = host::stepDigital,
          .lTargetID = iDeviceID,
          .sSignalName = sCommand,
          .sValue = sLevel};
}

NewStep PanelLevel(std::int16_t iPanelID, const std::string& sCommand, const std::string& sLevel) {
  NewStep step = Level(iPanelID, sCommand, sLevel);
  step.iTargetType = host::targetTouchpanel;
  return step;
}

NewStep Analog(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sConstant) {
  return {.iKind = host::stepAnalog,
          .lTargetID = iDeviceID,
          .sSignalName = sCommand,
          .sValue = sConstant};
}

NewStep Serial(std::int16_t iDeviceID, const std::string& sCommand, const std::string& sText) {
  return {
      .iKind = host::stepSerial, .lTargetID = iDeviceID, .sSignalName = sCommand, .sValue = sText};
}

NewStep Delay(std::int16_t iDeviceID, std::int16_t iSeconds) {
  // The time text of a delay keeps the place of the number's sign; that of a pulse does not.
  return {.iKind = host::stepDelay,
          .lTargetID = iDeviceID,
          .sValue = Hundredths(forms::decimalWithSignPlace(iSeconds) + "s")};
}

NewStep Call(const host::Preset& preset) {
  return {.iKind = host::stepCallPreset,
          .lTargetID = preset.get_ID(),
          .iTargetType = host::targetPreset};
}

std::string PulseTime(float sngSeconds) { return forms::decimal(sngSeconds) + "s"; }

host::StepCondition SignalIs(std::int16_t iDeviceID, const std::string& sSignalName,
                             std::int16_t iValue) {
  host::StepCondition test;
  test.put_DeviceID(iDeviceID);
  test.put_ConditionType(host::conditionDigitalValue);
  test.put_SignalName(sSignalName);
  test.put_Compare(host::compareEqual);
  test.put_Value(iValue);
  return test;
}

host::StepCondition ContactIsOpen(std::int16_t iDeviceID, const std::string& sSignalName) {
  return NamedState(iDeviceID, sSignalName, host::stateIsOpen, 0);
}

host::StepCondition ContactIsClosed(std::int16_t iDeviceID, const std::string& sSignalName) {
  return NamedState(iDeviceID, sSignalName, host::stateIsClosed, 1);
}

}  // namespace generator
