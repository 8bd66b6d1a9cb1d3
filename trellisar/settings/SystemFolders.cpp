#include "trellisar/settings/SystemFolders.h"

#include <cstdlib>
#include <fstream>

#include "forms/Paths.h"
#include "forms/Text.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string withBackslash(std::string folder) {
  if (!folder.ends_with('\\')) folder += '\\';
  return folder;
}

/// The desktop keeps the place of the documents folder in a file of lines such as
/// XDG_DOCUMENTS_DIR="$HOME/Documents".
fs::path documentsFolder() {
  const std::string home = environment("HOME");
  std::string config = environment("XDG_CONFIG_HOME");
  if (config.empty()) config = home + "/.config";
  std::ifstream lines(config + "/user-dirs.dirs");
  const std::string key = "XDG_DOCUMENTS_DIR=\"";
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(key) || !line.ends_with('"')) continue;
    const std::string value = line.substr(key.size(), line.size() - key.size() - 1);
    return forms::replacedAll(value, "$HOME", home);
  }
  return fs::path(home) / "Documents";
}

}  // namespace

std::string defaultSystemsFolder(const Preferences& preferences) {
  if (const std::string folder = environment("TRELLISAR_SYSTEMS"); !folder.empty()) {
    const fs::path machine = forms::toMachinePath(forms::fromMachinePath(folder));
    return withBackslash(forms::fromMachinePath(machine));
  }
  if (!preferences.defaultFolder().empty()) return withBackslash(preferences.defaultFolder());
  return withBackslash(forms::fromMachinePath(documentsFolder() / "Trellisar Systems"));
}

}  // namespace trellisar
