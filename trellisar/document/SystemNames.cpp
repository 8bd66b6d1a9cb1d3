#include "trellisar/document/SystemNames.h"

#include <algorithm>

#include "forms/Paths.h"
#include "forms/Text.h"

namespace trellisar {
namespace {

bool isControl(unsigned char c) { return c < ' ' || c == 0x7F; }

}  // namespace

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

std::string shownPath(const std::string& path) {
  return path.empty() ? path : forms::toMachinePath(path).string();
}

}  // namespace trellisar
