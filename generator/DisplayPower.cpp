#include "generator/DisplayPower.h"

#include "addin/Cast.h"
#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/DisplaySwitching.h"
#include "generator/Names.h"
#include "generator/PowerSensing.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

void AppendRelayCloseSteps(host::Preset& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iRelayID = settings.get_PowerRelayID();
  if (!IsInSystem(iRelayID)) return;
  AppendStep(preset, Command(iRelayID, "Relay_Close"));
  AppendStep(preset, Delay(iRelayID, settings.get_PowerRelayOnDelay()));
}

void AppendRelayOpenSteps(host::Preset& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iRelayID = settings.get_PowerRelayID();
  if (!IsInSystem(iRelayID)) return;
  AppendStep(preset, Delay(iRelayID, settings.get_PowerRelayOffDelay()));
  AppendStep(preset, Command(iRelayID, "Relay_Open"));
}

void AppendSecondPowerOffSteps(host::Preset& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iDisplayID = settings.get_DisplayDeviceID();
  const std::string sCommand = settings.get_sSecondPowerOff();
  const std::int16_t iSeconds = settings.get_iSecondPowerOff();
  if (settings.get_bSecondPowerOff() != 1 || sCommand.empty() || iSeconds <= 0) return;
  AppendStep(preset, Delay(iDisplayID, iSeconds));
  AppendStep(preset, Pulse(iDisplayID, sCommand, sDisplayPulse));
}

//  Display Power On                       Display Power Off
//    Relay_Close  power relay               off command    display       0.1 s
//    delay        power relay               delay          power relay
//    on command   display       0.1 s       Relay_Open     power relay
//                                           delay          display
//                                           second command display       0.1 s
bool AddDiscretePowerSteps(Run& run, std::int16_t ePowerOnOrOff, std::int16_t iDeviceID) {
  const std::string sCommand = GetDeviceCommandName(
      iDeviceID, addin::gAddIn().GetStandardCommandIDForPowerControl(ePowerOnOrOff));
  if (sCommand.empty()) {
    run.AddErrorItem(GetMissingPowerCommandWarning(ePowerOnOrOff), host::severityWarning);
    return true;
  }
  const auto preset = FindSequence(run, GetDisplayPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  preset->ClearSteps();

  if (ePowerOnOrOff == addin::pdOn) AppendRelayCloseSteps(*preset);
  AppendStep(*preset, Pulse(iDeviceID, sCommand, sDisplayPulse));
  if (ePowerOnOrOff == addin::pdOff) {
    AppendRelayOpenSteps(*preset);
    AppendSecondPowerOffSteps(*preset);
  }
  return true;
}

//  Display Power On                       Display Power Off
//    Relay_Close  power relay               Power_Off    sensing module
//    delay        power relay               delay        power relay
//    Power_On     sensing module            Relay_Open   power relay
bool AddSensedPowerSteps(Run& run, std::int16_t ePowerOnOrOff, std::int16_t iModuleID) {
  const std::string sSlot = GetModulePowerSlot(ePowerOnOrOff);
  const auto preset = FindSequence(run, GetDisplayPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  preset->ClearSteps();

  if (ePowerOnOrOff == addin::pdOn) AppendRelayCloseSteps(*preset);
  AppendStep(*preset, Command(iModuleID, sSlot));
  if (ePowerOnOrOff == addin::pdOff) AppendRelayOpenSteps(*preset);
  return true;
}

bool BuildSensedPower(Run& run, std::int16_t ePowerOnOrOff, DevicePtr display) {
  const std::int16_t iModuleID = AddPowerSensingModule(run, display);
  AddPowerSensorPart();
  if (!IsInSystem(iModuleID)) return run.Fail("Failed to add Power Sensing module.");
  return AddSensedPowerSteps(run, ePowerOnOrOff, iModuleID);
}

bool BuildLinkSystemToDisplayPower(Run& run, std::int16_t ePowerOnOrOff) {
  const NamedPreset system = GetSystemPowerPreset(ePowerOnOrOff);
  const NamedPreset display = GetDisplayPowerPreset(ePowerOnOrOff);
  const auto systemPreset = FindSequence(run, system.sName);
  if (!systemPreset) return false;
  const auto displayPreset = FindPreset(display.sName);
  if (!displayPreset) return false;
  if (systemPreset->get_Comment().empty()) systemPreset->put_Comment(system.sComment);
  if (displayPreset->get_Comment().empty()) displayPreset->put_Comment(display.sComment);
  return AddStep(*systemPreset, 1, Call(*displayPreset));
}

bool BuildDisplayPowerControl(Run& run, std::int16_t ePowerOnOrOff) {
  addin::IAddIn& settings = addin::gAddIn();
  const auto display = FindDisplay();
  if (!display) return BuildLinkSystemToDisplayPower(run, ePowerOnOrOff);

  bool bOK = true;
  switch (display->get_PowerControlType()) {
    case host::powerSensing:
      // The sensor takes over the input; while that stands there is nothing to be written.
      if (!settings.RemoveDigitalInput(addin::iPowerSensorInput)) return false;
      bOK = BuildSensedPower(run, ePowerOnOrOff, display);
      break;
    case host::powerDiscrete:
      RemovePowerSensorPart();
      bOK = AddDiscretePowerSteps(run, ePowerOnOrOff, display->get_ID());
      break;
    default:
      RemovePowerSensorPart();
      break;
  }

  // The sources are written also when the power steps failed.
  if (ePowerOnOrOff == addin::pdOn && settings.get_PowerOnLockoutTime() == 0 &&
      !BuildPowerOnSwitching(FindPreset(GetDisplayPowerPreset(addin::pdOn).sName))) {
    return false;
  }
  return bOK && BuildLinkSystemToDisplayPower(run, ePowerOnOrOff);
}

}  // namespace

bool BuildDisplayPowerPresets(Run& run) {
  return BuildDisplayPowerControl(run, addin::pdOn) && BuildDisplayPowerControl(run, addin::pdOff);
}

}  // namespace generator
