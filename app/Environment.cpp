#include "app/Environment.h"

#include <system_error>

#include "forms/Paths.h"
#include "trellisar/settings/SystemFolders.h"

namespace app {

namespace fs = std::filesystem;

namespace {

fs::path programFolder() { return fs::read_symlink("/proc/self/exe").parent_path(); }

}  // namespace

fs::path dataFolder() { return ORLENA_DATA_FOLDER; }

std::optional<fs::path> findProgramFile(const std::string& name) {
  for (const fs::path& folder : {programFolder(), programFolder().parent_path() / "lib/orlena"}) {
    std::error_code failure;
    if (fs::exists(folder / name, failure)) return folder / name;
  }
  return std::nullopt;
}

fs::path componentsFile() {
  const std::string name = "components.json";
  return findProgramFile(name).value_or(programFolder() / name);
}

trellisar::Preferences readOnlyPreferences() {
  const auto kept = trellisar::Preferences::lookedAt(trellisar::Preferences::usualFile());
  trellisar::Preferences preferences;
  preferences.setDefaultFolder(kept.defaultFolder());
  return preferences;
}

fs::path defaultSystemsFolder() {
  return forms::toMachinePath(trellisar::defaultSystemsFolder(readOnlyPreferences()));
}

}  // namespace app
