#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr const char* sLockComment =
    "Place additional steps here if you wish to lock other devices or interfaces.  Make sure if "
    "you lock additional items that you also unlock them in the \"System Unlock\" "
    "preset.\r\n\r\nYou can lock the system from a variety of events.  For example, the system "
    "could be locked from Kestrum, at a specific time, when the system is powered off, etc.";
constexpr const char* sUnlockComment =
    "Place additional steps here if you wish to unlock other devices or interfaces.  Make sure "
    "that any devices or interfaces that are locked in the \"System Lock\" preset get unlocked "
    "here.";

void StartAnew(host::Preset& preset, const char* sComment) {
  preset.ClearSteps();
  if (preset.get_Comment().empty()) preset.put_Comment(sComment);
}

}  // namespace

bool Generate::BuildSystemLockPresets() { return BuildSystemLock() && BuildSystemUnlock(); }

//  System Lock
//    Lock                  receiver
//    Enabled low           each panel
//    System_Locked high    Kestrum
bool Generate::BuildSystemLock() {
  const auto preset = FindSequence(sSystemLockPreset);
  if (!preset) return false;
  const addin::IAddIn& settings = addin::gAddIn();
  StartAnew(*preset, sLockComment);
  if (settings.get_ReceiverID() != 0) {
    AppendStep(*preset, Command(settings.get_ReceiverID(), sLockCommand));
  }
  static_cast<void>(AddInterfaceEnableSteps(/*bDisable=*/true, preset));
  if (settings.get_KestrumID() > 0) {
    AppendStep(*preset, Level(settings.get_KestrumID(), "System_Locked", host::levelHigh));
  }
  return true;
}

//  System Unlock
//    Unlock                receiver
//    Enabled high          each panel
//    System_Unlocked low   Kestrum
bool Generate::BuildSystemUnlock() {
  const auto preset = FindSequence(sSystemUnlockPreset);
  if (!preset) return false;
  const addin::IAddIn& settings = addin::gAddIn();
  StartAnew(*preset, sUnlockComment);
  if (settings.get_ReceiverID() != 0) {
    AppendStep(*preset, Command(settings.get_ReceiverID(), sUnlockCommand));
  }
  static_cast<void>(AddInterfaceEnableSteps(/*bDisable=*/false, preset));
  if (settings.get_KestrumID() > 0) {
    AppendStep(*preset, Level(settings.get_KestrumID(), "System_Unlocked", host::levelLow));
  }
  return true;
}

}  // namespace generator
