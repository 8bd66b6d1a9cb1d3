#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>

#include "forms/Paths.h"

namespace tests {

/// A folder of its own that is gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "test-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("No temporary folder could be made.");
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  const std::filesystem::path& path() const { return path_; }
  /// A path in the folder, with backslashes.
  std::string inside(const std::string& name) const {
    return forms::fromMachinePath(path_) + "\\" + name;
  }

 private:
  std::filesystem::path path_;
};

inline void writeFile(const std::filesystem::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary) << content;
}

inline std::string fileText(const std::filesystem::path& file) {
  std::ostringstream text;
  text << std::ifstream(file, std::ios::binary).rdbuf();
  return text.str();
}

}  // namespace tests
