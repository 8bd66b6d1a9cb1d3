#include "app/Environment.h"

#include "forms/Paths.h"
#include "trellisar/SystemFolders.h"

namespace app {

std::filesystem::path dataFolder() { return ORLENA_DATA_FOLDER; }

trellisar::Preferences readOnlyPreferences() {
  const trellisar::Preferences kept(trellisar::Preferences::usualFile());
  trellisar::Preferences preferences;
  preferences.setDefaultFolder(kept.defaultFolder());
  return preferences;
}

std::filesystem::path defaultSystemsFolder() {
  return forms::toMachinePath(trellisar::defaultSystemsFolder(readOnlyPreferences()));
}

}  // namespace app
