#include "addin/Cast.h"
#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr std::int16_t iFirst = 1;

std::int16_t ContactID() { return addin::gAddIn().GetDigitalInputID(addin::iContactInput); }

bool InsertSystemLockBranch(Run& run, host::Preset& preset, std::int16_t iIndex,
                            const host::StepCondition& test) {
  return InsertBranch(preset, iIndex, test, [&run](const PresetPtr& branch) {
    const auto lock = FindPreset(sSystemLockPreset);
    if (!lock) return run.CannotFindPreset(sSystemLockPreset);
    return AddStep(*branch, iFirst, Call(*lock));
  });
}

bool AddSystemLockToPreset(Run& run, const std::string& sPreset, bool bAtStart) {
  const auto preset = FindPreset(sPreset);
  if (!preset) return run.CannotFindPreset(sPreset);
  const auto iEnd = static_cast<std::int16_t>(preset->get_StepCount() + 1);
  return InsertSystemLockBranch(run, *preset, bAtStart ? iFirst : iEnd,
                                ContactIsOpen(ContactID(), sContact));
}

//  System Power Off, at its end, when normal operation continues
//    if (digital input 2 is open)
//      call System Lock
bool BuildContactOpened(Run& run, const host::Signal& contact) {
  if (addin::gAddIn().get_PowerContactClosureOption() == addin::contactPowerOff) {
    return AddPresetCallToEvent(contact, host::eventLow, sSystemLockPreset, /*bClear=*/true);
  }
  if (!AddSystemLockToPreset(run, GetSystemPowerPreset(addin::pdOff).sName, /*bAtStart=*/false)) {
    return false;
  }
  const auto opened = EventPreset(contact, host::eventLow);
  opened->ClearSteps();
  return InsertSystemLockBranch(run, *opened, iFirst,
                                SignalIs(addin::gAddIn().get_ReceiverID(), sPoweredOff, 1));
}

//  System_Ready_Pulse goes high: a room that starts with the contact open starts locked
//    if (digital input 2 is open)
//      call System Lock
bool BuildLockAtStart(Run& run) {
  const auto ready = FindOutput(addin::gAddIn().get_ReceiverID(), "System_Ready_Pulse");
  if (!ready) return false;
  EnableEvents(*ready);
  const auto started = EventPreset(*ready, host::eventHigh);
  started->ClearSteps();
  return InsertSystemLockBranch(run, *started, iFirst, ContactIsOpen(ContactID(), sContact));
}

}  // namespace

//  Digital input 2 closes      Digital input 2 opens
//    call System Unlock          call System Lock         power off immediately
//                                if (Powered_Off)         continue normal operation
//                                  call System Lock
bool Generate::BuildOnOffContactClosureControl() {
  const auto contact = FindOutput(ContactID(), sContact);
  if (!contact) return false;
  EnableEvents(*contact);
  ClearEvents(*contact);
  if (addin::gAddIn().get_PowerContactClosureOption() == addin::contactUnused) return true;
  return AddPresetCallToEvent(*contact, host::eventHigh, sSystemUnlockPreset, /*bClear=*/true) &&
         BuildContactOpened(m_run, *contact) && BuildLockAtStart(m_run);
}

}  // namespace generator
