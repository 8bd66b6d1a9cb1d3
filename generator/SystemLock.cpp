#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

struct LockNames {
  const char* sPreset;
  const char* sComment;
  const char* sReceiverCommand;
  bool bDisablePanels;
  const char* sKestrumSignal;
  const char* sKestrumLevel;
};

constexpr LockNames lock{
    .sPreset = sSystemLockPreset,
    .sComment =
        "Place additional steps here if you wish to lock other devices or interfaces.  Make sure "
        "if you lock additional items that you also unlock them in the \"System Unlock\" "
        "preset.\r\n\r\nYou can lock the system from a variety of events.  For example, the system "
        "could be locked from Kestrum, at a specific time, when the system is powered off, etc.",
    .sReceiverCommand = sLockCommand,
    .bDisablePanels = true,
    .sKestrumSignal = "System_Locked",
    .sKestrumLevel = host::levelHigh,
};

constexpr LockNames unlock{
    .sPreset = sSystemUnlockPreset,
    .sComment =
        "Place additional steps here if you wish to unlock other devices or interfaces.  Make sure "
        "that any devices or interfaces that are locked in the \"System Lock\" preset get unlocked "
        "here.",
    .sReceiverCommand = sUnlockCommand,
    .bDisablePanels = false,
    .sKestrumSignal = "System_Unlocked",
    .sKestrumLevel = host::levelLow,
};

//  System Lock                        System Unlock
//    Lock                 receiver      Unlock                receiver
//    Enabled low          each panel    Enabled high          each panel
//    System_Locked high   Kestrum       System_Unlocked low   Kestrum
bool BuildLockPreset(Run& run, const LockNames& names) {
  const auto preset = FindSequence(run, names.sPreset);
  if (!preset) return false;
  const addin::IAddIn& settings = addin::gAddIn();
  preset->ClearSteps();
  if (preset->get_Comment().empty()) preset->put_Comment(names.sComment);
  if (IsInSystem(settings.get_ReceiverID())) {
    AppendStep(*preset, Command(settings.get_ReceiverID(), names.sReceiverCommand));
  }
  static_cast<void>(AddInterfaceEnableSteps(names.bDisablePanels, preset));
  if (IsInSystem(settings.get_KestrumID())) {
    AppendStep(*preset, Level(settings.get_KestrumID(), names.sKestrumSignal, names.sKestrumLevel));
  }
  return true;
}

bool BuildSystemLock(Run& run) { return BuildLockPreset(run, lock); }
bool BuildSystemUnlock(Run& run) { return BuildLockPreset(run, unlock); }

}  // namespace

bool Generate::BuildSystemLockPresets() {
  return BuildSystemLock(m_run) && BuildSystemUnlock(m_run);
}

}  // namespace generator
