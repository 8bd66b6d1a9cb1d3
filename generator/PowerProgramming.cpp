#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/DisplayPower.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

bool ClearPowerPreset(Run& run, std::int16_t ePowerOnOrOff) {
  const auto preset = FindSequence(run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  preset->ClearSteps();
  return true;
}

bool AddAuxiliaryPulseStep(Run& run, std::int16_t iAuxiliaryDevice, std::int16_t ePowerOnOrOff) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iDeviceID = iAuxiliaryDevice == addin::adtScreen
                                     ? settings.get_ScreenDeviceID()
                                     : settings.get_LiftDeviceID();
  if (!IsInSystem(iDeviceID)) return true;
  const auto preset = FindSequence(run, GetSystemPowerPreset(ePowerOnOrOff).sName);
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

bool BuildAuxiliaryDevicePower(Run& run, std::int16_t ePowerOnOrOff) {
  return AddAuxiliaryPulseStep(run, addin::adtScreen, ePowerOnOrOff) &&
         AddAuxiliaryPulseStep(run, addin::adtLift, ePowerOnOrOff);
}

//  Powered_Off goes high        Powered_On goes high
//    call System Power Off        call System Power On
bool BuildReceiverPowerEvents(Run& run) {
  const std::int16_t iReceiverID = addin::gAddIn().get_ReceiverID();
  const auto connect = [iReceiverID](const std::string& sOutput, std::int16_t ePowerOnOrOff) {
    return ConnectEventToGlobalPreset(iReceiverID, sOutput, host::eventHigh,
                                      GetSystemPowerPreset(ePowerOnOrOff).sName, /*bClear=*/true);
  };
  if (connect(sPoweredOff, addin::pdOff) && connect("Powered_On", addin::pdOn)) return true;
  return run.Fail("Failed to build power event for the OL receiver.");
}

bool AddReceiverPowerStep(Run& run, std::int16_t ePowerOnOrOff) {
  const std::int16_t iReceiverID = addin::gAddIn().get_ReceiverID();
  if (!IsInSystem(iReceiverID)) return true;
  const auto preset = FindSequence(run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  AppendStep(*preset, Command(iReceiverID, GetReceiverPowerCommand(ePowerOnOrOff)));
  return true;
}

bool BuildReceiverPowerOff(Run& run) { return AddReceiverPowerStep(run, addin::pdOff); }

bool AddKestrumPowerFeedbackStep(Run& run, std::int16_t ePowerOnOrOff) {
  const std::int16_t iKestrumID = addin::gAddIn().get_KestrumID();
  if (!IsInSystem(iKestrumID)) return true;
  const auto preset = FindSequence(run, GetSystemPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  AppendStep(*preset, Command(iKestrumID, GetKestrumPowerSignal(ePowerOnOrOff)));
  return true;
}

bool BuildKestrumPowerFeedback(Run& run) {
  return AddKestrumPowerFeedbackStep(run, addin::pdOn) &&
         AddKestrumPowerFeedbackStep(run, addin::pdOff);
}

}  // namespace

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
  bOK &= ClearPowerPreset(m_run, addin::pdOn);
  bOK &= ClearPowerPreset(m_run, addin::pdOff);
  bOK &= BuildDisplayPowerPresets(m_run);
  bOK &= BuildAuxiliaryDevicePower(m_run, addin::pdOn);
  bOK &= BuildAuxiliaryDevicePower(m_run, addin::pdOff);
  bOK &= BuildReceiverPowerEvents(m_run);
  bOK &= BuildReceiverPowerOff(m_run);
  bOK &= BuildKestrumPowerFeedback(m_run);
  return bOK;
}

}  // namespace generator
