#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {

//  System Power On                              System Power Off
//    call Display Power On                        call Display Power Off
//    down command  screen   its pulse time        up command  screen   its pulse time
//    down command  lift     its pulse time        up command  lift     its pulse time
//                                                 Power_Off   receiver
//    System_Powered_On      Kestrum               System_Powered_Off   Kestrum
//
// A failure does not keep the rest from being written: all eight parts run.
bool Generate::BuildPowerProgramming() {
  bool bOK = true;
  bOK &= ClearPowerPreset(addin::pdOn);
  bOK &= ClearPowerPreset(addin::pdOff);
  bOK &= BuildDisplayPowerPresets();
  bOK &= BuildAuxiliaryDevicePower(addin::pdOn);
  bOK &= BuildAuxiliaryDevicePower(addin::pdOff);
  bOK &= BuildReceiverPowerEvents();
  bOK &= BuildReceiverPowerOff();
  bOK &= BuildKestrumPowerFeedback();
  return bOK;
}

bool Generate::ClearPowerPreset(std::int16_t ePowerOnOrOff) {
  const auto preset = FindSequence(m_run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  preset->ClearSteps();
  return true;
}

bool Generate::BuildLinkSystemToDisplayPower(std::int16_t ePowerOnOrOff) {
  const NamedPreset system = GetSystemPowerPreset(ePowerOnOrOff);
  const NamedPreset display = GetDisplayPowerPreset(ePowerOnOrOff);
  const auto systemPreset = FindSequence(m_run, system.sName);
  if (!systemPreset) return false;
  const auto displayPreset = FindPreset(display.sName);
  if (!displayPreset) return false;
  if (systemPreset->get_Comment().empty()) systemPreset->put_Comment(system.sComment);
  if (displayPreset->get_Comment().empty()) displayPreset->put_Comment(display.sComment);
  return AddStep(*systemPreset, 1, Call(*displayPreset));
}

bool Generate::BuildAuxiliaryDevicePower(std::int16_t ePowerOnOrOff) {
  return AddAuxiliaryPulseStep(addin::adtScreen, ePowerOnOrOff) &&
         AddAuxiliaryPulseStep(addin::adtLift, ePowerOnOrOff);
}

bool Generate::AddAuxiliaryPulseStep(std::int16_t iAuxiliaryDevice, std::int16_t ePowerOnOrOff) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iDeviceID = iAuxiliaryDevice == addin::adtScreen
                                     ? settings.get_ScreenDeviceID()
                                     : settings.get_LiftDeviceID();
  if (iDeviceID <= 0) return true;
  const auto preset = FindSequence(m_run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  const std::string sCommand = GetAuxiliaryCommandName(iDeviceID, ePowerOnOrOff);
  if (sCommand.empty()) return true;
  const auto intOption = static_cast<std::int16_t>(iAuxiliaryDevice - addin::adtScreen);
  AppendStep(*preset, Pulse(iDeviceID, sCommand,
                            PulseTime(ePowerOnOrOff == addin::pdOn
                                          ? settings.get_PowerOnPulseTime(intOption)
                                          : settings.get_PowerOffPulseTime(intOption))));
  return true;
}

//  Powered_Off goes high        Powered_On goes high
//    call System Power Off        call System Power On
bool Generate::BuildReceiverPowerEvents() {
  const std::int16_t iReceiverID = addin::gAddIn().get_ReceiverID();
  const auto connect = [iReceiverID](const std::string& sOutput, std::int16_t ePowerOnOrOff) {
    return ConnectEventToGlobalPreset(iReceiverID, sOutput, host::eventHigh,
                                      GetSystemPowerPreset(ePowerOnOrOff).sName, /*bClear=*/true);
  };
  if (connect(sPoweredOff, addin::pdOff) && connect("Powered_On", addin::pdOn)) return true;
  return m_run.Fail("Failed to build power event for the OL receiver.");
}

bool Generate::BuildReceiverPowerOff() { return AddReceiverPowerStep(addin::pdOff); }

bool Generate::AddReceiverPowerStep(std::int16_t ePowerOnOrOff) {
  const std::int16_t iReceiverID = addin::gAddIn().get_ReceiverID();
  if (iReceiverID <= 0) return true;
  const auto preset = FindSequence(m_run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  AppendStep(*preset, Command(iReceiverID, GetReceiverPowerCommand(ePowerOnOrOff)));
  return true;
}

bool Generate::BuildKestrumPowerFeedback() {
  return AddKestrumPowerFeedbackStep(addin::pdOn) && AddKestrumPowerFeedbackStep(addin::pdOff);
}

bool Generate::AddKestrumPowerFeedbackStep(std::int16_t ePowerOnOrOff) {
  const std::int16_t iKestrumID = addin::gAddIn().get_KestrumID();
  if (iKestrumID <= 0) return true;
  const auto preset = FindSequence(m_run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  AppendStep(*preset, Command(iKestrumID, GetKestrumPowerSignal(ePowerOnOrOff)));
  return true;
}

}  // namespace generator
