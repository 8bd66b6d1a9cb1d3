#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "forms/Paths.h"

namespace tests {

/// Writes a file and the folders that it needs, and answers its path.
inline std::filesystem::path writeFile(const std::filesystem::path& file,
                                       std::string_view content) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << content;
  return file;
}

inline std::string fileText(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

/// A folder of its own that is gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("No temporary folder could be made.");
    path_ = std::filesystem::canonical(name);
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }
  /// A path in the folder, with backslashes.
  std::string inside(const std::string& name) const {
    return forms::fromMachinePath(path_) + "\\" + name;
  }
  std::filesystem::path write(const std::string& name, std::string_view content) const {
    return writeFile(path_ / name, content);
  }
  /// Everything in the folder, with paths relative to it, in order. Folders end with "/".
  std::vector<std::string> listing() const {
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path_)) {
      const std::string name = std::filesystem::relative(entry.path(), path_).string();
      found.push_back(name + (entry.is_directory() ? "/" : ""));
    }
    std::sort(found.begin(), found.end());
    return found;
  }

 private:
  std::filesystem::path path_;
};

}  // namespace tests
