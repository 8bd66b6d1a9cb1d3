#include "addin/Cast.h"
#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/DisplaySwitching.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Lockout.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

// What the monitoring interface is told.
constexpr const char* sDisplayPowerState = "Display_Power_State";
constexpr const char* sOff = "0d";
constexpr const char* sOn = "1d";
constexpr const char* sWarming = "2d";
constexpr const char* sCooling = "3d";

bool ReportDisplayState(Run& run, const host::Signal& signal, const char* sHigh, const char* sLow) {
  const std::int16_t iKestrumID = addin::gAddIn().get_KestrumID();
  if (!IsInSystem(iKestrumID)) return true;
  return AddCommandToEvent(run, signal, host::eventHigh,
                           Analog(iKestrumID, sDisplayPowerState, sHigh)) &&
         AddCommandToEvent(run, signal, host::eventLow,
                           Analog(iKestrumID, sDisplayPowerState, sLow));
}

//  Warming_Up goes high                          Warming_Up goes low
//    Display_Power_State 2d   Kestrum              Display_Power_State 1d   Kestrum
//    Enabled low              each panel           if (RGB_Selected)               RGB command
//                                                  if (Composite_Video_Selected)   video command
//                                                  Enabled high             each panel
bool BuildWarmingUp(Run& run, std::int16_t iModuleID) {
  const auto signal = FindOutput(iModuleID, "Warming_Up");
  if (!signal) return false;
  EnableEvents(*signal);
  ClearEvents(*signal);
  const auto started = EventPreset(*signal, host::eventHigh);
  const auto ended = EventPreset(*signal, host::eventLow);
  if (!ReportDisplayState(run, *signal, sWarming, sOn)) return false;
  if (!BuildPowerOnSwitching(ended)) return false;
  static_cast<void>(AddInterfaceEnableSteps(/*bDisable=*/true, started));
  static_cast<void>(AddInterfaceEnableSteps(/*bDisable=*/false, ended));
  return true;
}

//  if (digital input 2 is closed)       when the contact is used
//    if (System_Lock is 0)              when the room is monitored
//      Unlock         receiver
//      Enabled high   each panel
//
// The end of the cool-down does not open a room that is to stay locked.
void AppendUnlockSteps(const PresetPtr& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iReceiverID = settings.get_ReceiverID();
  const std::int16_t iKestrumID = settings.get_KestrumID();
  const auto unlock = [iReceiverID](const PresetPtr& branch) {
    if (IsInSystem(iReceiverID)) AppendStep(*branch, Command(iReceiverID, sUnlockCommand));
    return AddInterfaceEnableSteps(/*bDisable=*/false, branch);
  };
  const auto unlockUnlessMonitoringLocks = [&](const PresetPtr& branch) {
    if (!IsInSystem(iKestrumID)) return unlock(branch);
    return AppendBranch(*branch, SignalIs(iKestrumID, sKestrumLock, 0), unlock);
  };
  if (!IsInSystem(iReceiverID)) {
    static_cast<void>(unlock(preset));
  } else if (settings.get_PowerContactClosureOption() == addin::contactUnused) {
    static_cast<void>(unlockUnlessMonitoringLocks(preset));
  } else {
    const auto isClosed =
        ContactIsClosed(settings.GetDigitalInputID(addin::iContactInput), sContact);
    static_cast<void>(AppendBranch(*preset, isClosed, unlockUnlessMonitoringLocks));
  }
}

//  Cooling_Down goes high                        Cooling_Down goes low
//    Display_Power_State 3d   Kestrum              Display_Power_State 0d   Kestrum
//    Lock                     receiver             what unlocks the room again
//    Enabled low              each panel
bool BuildCoolingDown(Run& run, std::int16_t iModuleID) {
  const auto signal = FindOutput(iModuleID, "Cooling_Down");
  if (!signal) return false;
  EnableEvents(*signal);
  ClearEvents(*signal);
  const auto started = EventPreset(*signal, host::eventHigh);
  if (!ReportDisplayState(run, *signal, sCooling, sOff)) return false;
  if (const std::int16_t iReceiverID = addin::gAddIn().get_ReceiverID(); IsInSystem(iReceiverID)) {
    AppendStep(*started, Command(iReceiverID, sLockCommand));
  }
  static_cast<void>(AddInterfaceEnableSteps(/*bDisable=*/true, started));
  AppendUnlockSteps(EventPreset(*signal, host::eventLow));
  return true;
}

}  // namespace

bool Generate::BuildDisplayStateProgramming() {
  auto display = FindDisplay();
  if (!display || !NeedsLockout(*display)) return true;
  const auto module = GetPowerLockoutModule(m_run, display);
  if (!module) return false;
  return BuildWarmingUp(m_run, module->get_ID()) && BuildCoolingDown(m_run, module->get_ID());
}

}  // namespace generator
