#include "app/Environment.h"

#include <cstdlib>
#include <system_error>

#include "forms/Paths.h"
#include "host/Error.h"
#include "trellisar/settings/SystemFolders.h"

namespace app {

namespace fs = std::filesystem;

namespace {

fs::path programFolder() { return fs::read_symlink("/proc/self/exe").parent_path(); }

bool holdsData(const fs::path& folder) {
  std::error_code failure;
  return fs::is_directory(folder / "library", failure);
}

std::string inQuotes(const fs::path& path) { return "\"" + path.string() + "\""; }

}  // namespace

fs::path dataFolder() {
  const char* named = std::getenv("ORLENA_DATA");
  if (named && *named != '\0') {
    if (holdsData(named)) return fs::canonical(named);
    throw host::Error(host::errFile, "ORLENA_DATA names " + inQuotes(named) +
                                         ", which does not hold the program's data.");
  }
  const fs::path beside = programFolder() / "data";
  const fs::path installed = programFolder().parent_path() / "share/orlena";
  for (const fs::path& folder : {beside, installed}) {
    if (holdsData(folder)) return fs::canonical(folder);
  }
  throw host::Error(host::errFile, "The program's data is neither in " + inQuotes(beside) +
                                       " nor in " + inQuotes(installed) +
                                       ". Install it again, or name its folder in ORLENA_DATA.");
}

std::optional<fs::path> findProgramFile(const std::string& name) {
  for (const fs::path& folder :
       {programFolder(), programFolder().parent_path() / "lib/orlena/parts"}) {
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
