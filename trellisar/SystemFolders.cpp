#include "trellisar/SystemFolders.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <system_error>

#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/CompiledProgram.h"
#include "trellisar/FileIO.h"
#include "trellisar/PanelProject.h"
#include "trellisar/SystemFile.h"
#include "trellisar/SystemInfoObject.h"

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

bool isControl(unsigned char c) { return c < ' ' || c == 0x7F; }

}  // namespace

std::string shownPath(const std::string& path) {
  return path.empty() ? path : forms::toMachinePath(path).string();
}

std::string defaultSystemsFolder(const Preferences& preferences) {
  if (const std::string folder = environment("TRELLISAR_SYSTEMS"); !folder.empty()) {
    const fs::path machine = forms::toMachinePath(forms::fromMachinePath(folder));
    return withBackslash(forms::fromMachinePath(machine));
  }
  if (!preferences.defaultFolder().empty()) return withBackslash(preferences.defaultFolder());
  return withBackslash(forms::fromMachinePath(documentsFolder() / "Trellisar Systems"));
}

std::string fileNameProblem(const std::string& name) {
  if (name.empty()) return "A system must have a name.";
  if (forms::lowerCase(name).ends_with(".tsy")) {
    return "\"" + name +
           "\" ends like the name of a file, which the system's file gets by itself. " +
           "Leave \".tsy\" out of the system's name.";
  }
  std::string shown = name;
  std::replace_if(shown.begin(), shown.end(), isControl, '?');
  const bool isReserved = name == "." || name == "..";
  if (!isReserved && shown == name && name.find_first_of("/\\") == std::string::npos) return {};
  return "\"" + shown + "\" can't be the name of a file. Choose another name for the system.";
}

std::string systemNameProblem(const std::string& name) {
  if (forms::length(name) <= maximumNameLength) return fileNameProblem(name);
  return "The name of a system has at most " + std::to_string(maximumNameLength) + " characters.";
}

bool isSameFile(const fs::path& one, const fs::path& other) {
  std::error_code error;
  if (fs::equivalent(one, other, error)) return true;
  return one.lexically_normal() == other.lexically_normal();
}

fs::path foreignSystemIn(const fs::path& folder, const fs::path& ownFile) {
  fs::path foreign;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (forms::lowerCase(entry.path().extension().string()) != ".tsy") continue;
    if (isSameFile(entry.path(), ownFile)) return {};
    if (foreign.empty() || entry.path() < foreign) foreign = entry.path();
  }
  return foreign;
}

void Belongings::remove() const {
  std::error_code ignored;
  for (const fs::path& file : files_) fs::remove(file, ignored);
}

Belongings belongingsOfOther(const DocumentData& document, const fs::path& file) {
  std::error_code error;
  if (!fs::exists(file, error)) return {};
  if (isSameFile(file.parent_path(), document.ownFile.parent_path())) return {};
  try {
    const DocumentPtr other = readSystemFile(file, nullptr);
    std::vector<fs::path> files;
    if (!other->compiledProgram.empty()) files.push_back(storedProgramFile(*other));
    for (const DevicePtr& panel : other->panels) {
      if (panel->definition->projectPanel) files.push_back(panelProjectFile(*other, *panel));
    }
    return Belongings(std::move(files));
  } catch (const host::Error&) {
    return {};  // of a damaged system nobody knows what belongs to it
  }
}

MadeFolders::MadeFolders(const fs::path& folder) {
  fs::path path;
  for (const fs::path& part : folder) {
    path /= part;
    if (part.empty()) continue;
    std::error_code error;
    if (fs::create_directory(path, error)) made_.push_back(path);
    if (!error && fs::is_directory(path, error)) continue;
    const bool isFile = !error || error == std::errc::file_exists;
    const std::string reason = systemReason(isFile ? ENOTDIR : error.value());
    removeMade();
    throw host::Error(host::errFile,
                      "Can't make the folder \"" + folder.string() + "\": " + reason);
  }
}

MadeFolders::~MadeFolders() { removeMade(); }

void MadeFolders::removeMade() {
  std::error_code ignored;
  while (!made_.empty()) {
    fs::remove(made_.back(), ignored);
    made_.pop_back();
  }
}

}  // namespace trellisar
