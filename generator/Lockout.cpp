#include "generator/Lockout.h"

#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Numbers.h"
#include "forms/Text.h"
#include "generator/Devices.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr const char* sWarmUpTime = "Warm Up Time";
constexpr const char* sCoolDownTime = "Cool Down Time";

struct PowerTarget {
  std::int16_t iDeviceID;
  std::string sCommand;
};

void SetSlot(host::ModuleCommandSlot& slot, std::int16_t ePowerOnOrOff, const PowerTarget& target) {
  if (!forms::equalsIgnoringCase(slot.get_Name(), GetModulePowerSlot(ePowerOnOrOff))) return;
  slot.put_DeviceID(target.iDeviceID);
  slot.put_CommandName(target.sCommand);
}

/// What the host answers is not looked at: what counts is whether the module is there afterwards.
DevicePtr AddLockoutModule(DevicePtr& display) {
  const host::ModuleList colModules = ModulesFromLibrary(sLockoutModule, display->get_ID());
  if (colModules.Items().empty()) return nullptr;
  static_cast<void>(addin::gDocument().AddModules(colModules, display));
  auto added = FindModule(*display, sLockoutModule);
  if (added) added->put_ShowInTree(false);
  return added;
}

bool SetPowerLockoutTimes(Run& run, const host::Device& module) {
  const addin::IAddIn& settings = addin::gAddIn();
  if (!SetProperty(run, module, sWarmUpTime, forms::decimal(settings.get_PowerOnLockoutTime()))) {
    return false;
  }
  // A module with the one time has the other; the host raises an error for one that has not.
  const std::string sCoolDown = forms::decimal(settings.get_PowerOffLockoutTime());
  return module.get_Properties()->Item(sCoolDownTime)->SetValue(sCoolDown) ||
         run.FailedToSetProperty(sCoolDownTime, sCoolDown);
}

/// A command of the sensing module, or none: then it is the display's own.
bool SetPowerLockoutCommands(const host::Device& module, const std::string& sOnCommand,
                             const std::string& sOffCommand) {
  const auto slots = module.get_CommandSlots();
  if (slots.empty()) return false;
  const std::int16_t iDisplayID = addin::gAddIn().get_DisplayDeviceID();
  const auto display = FindDisplay();
  const auto sensing = display ? FindModule(*display, sSensingModule) : nullptr;
  const std::int16_t iSensorID = sensing ? sensing->get_ID() : addin::iNoDevice;
  const auto target = [&](const std::string& sCommand, std::int16_t iStandardCommand) {
    if (!sCommand.empty()) return PowerTarget{iSensorID, sCommand};
    return PowerTarget{iDisplayID, GetDeviceCommandName(iDisplayID, iStandardCommand)};
  };
  const PowerTarget on = target(sOnCommand, host::scOn);
  const PowerTarget off = target(sOffCommand, host::scOff);
  for (const auto& slot : slots) {
    SetSlot(*slot, addin::pdOn, on);
    SetSlot(*slot, addin::pdOff, off);
  }
  return true;
}

}  // namespace

bool NeedsLockout(const host::Device& display) {
  const addin::IAddIn& settings = addin::gAddIn();
  const bool bNoTimes =
      settings.get_PowerOnLockoutTime() == 0 && settings.get_PowerOffLockoutTime() == 0;
  return !bNoTimes && display.get_PowerControlType() != host::powerNone;
}

DevicePtr GetPowerLockoutModule(Run& run, DevicePtr& display) {
  if (auto present = FindModule(*display, sLockoutModule)) return present;
  auto added = AddLockoutModule(display);
  if (!added) run.Fail("Failed to add Power On/Off Lockout module.");
  return added;
}

//  PWRTIMEOUT below the display
//    Warm Up Time, Cool Down Time    the two lockout times in seconds
//    slots Power_On, Power_Off       the sensing module's commands, or the display's own
bool Generate::BuildPowerOnOffLockout() {
  auto display = FindDisplay();
  if (!display || !NeedsLockout(*display)) return true;
  const auto module = GetPowerLockoutModule(m_run, display);
  if (!module) return false;
  const bool bOK = SetPowerLockoutTimes(m_run, *module);
  // The commands are written also when a time was refused, and do not change the answer.
  if (display->get_PowerControlType() == host::powerSensing) {
    static_cast<void>(SetPowerLockoutCommands(*module, GetModulePowerSlot(addin::pdOn),
                                              GetModulePowerSlot(addin::pdOff)));
  } else if (display->get_PowerControlType() == host::powerDiscrete) {
    static_cast<void>(SetPowerLockoutCommands(*module, "", ""));
  }
  return bOK;
}

}  // namespace generator
