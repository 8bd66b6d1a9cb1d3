#include "app/Environment.h"

#include "forms/Paths.h"
#include "trellisar/settings/SystemFolders.h"

namespace app {

std::filesystem::path dataFolder() { return ORLENA_DATA_FOLDER; }

std::filesystem::path componentsFile() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path() / "components.json";
}

trellisar::Preferences readOnlyPreferences() {
  const auto kept = trellisar::Preferences::lookedAt(trellisar::Preferences::usualFile());
  trellisar::Preferences preferences;
  preferences.setDefaultFolder(kept.defaultFolder());
  return preferences;
}

std::filesystem::path defaultSystemsFolder() {
  return forms::toMachinePath(trellisar::defaultSystemsFolder(readOnlyPreferences()));
}

}  // namespace app
