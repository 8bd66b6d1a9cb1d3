#include "forms/Paths.h"

#include <algorithm>

#include "forms/Application.h"
#include "forms/Error.h"

namespace forms {

std::filesystem::path toMachinePath(std::string_view path) {
  std::string text(path);
  std::replace(text.begin(), text.end(), '\\', '/');
  const std::filesystem::path machinePath(text);
  if (machinePath.is_absolute() || !Application::exists()) return machinePath;
  std::string folder = Application::current().currentFolder();
  std::replace(folder.begin(), folder.end(), '\\', '/');
  return std::filesystem::path(folder) / machinePath;
}

std::string fromMachinePath(const std::filesystem::path& path) {
  std::string text = path.string();
  if (text.find('\\') != std::string::npos) {
    throw Error(errors::pathNotFound, "A path with a backslash in a name can't be used: " + text);
  }
  std::replace(text.begin(), text.end(), '/', '\\');
  return text;
}

std::string fileNameOf(std::string_view path) {
  return std::string(path.substr(path.find_last_of('\\') + 1));
}

std::string folderOf(std::string_view path) {
  return std::string(path.substr(0, path.find_last_of('\\') + 1));
}

}  // namespace forms
