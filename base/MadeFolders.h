#pragma once

#include <filesystem>
#include <vector>

namespace base {

/// Makes a folder and those above it. Without `keep` they are removed again at the end, as far as
/// they are empty.
class MadeFolders {
 public:
  /// Raises FileError with the folder and the reason.
  explicit MadeFolders(const std::filesystem::path& folder);
  ~MadeFolders();
  MadeFolders(const MadeFolders&) = delete;
  MadeFolders& operator=(const MadeFolders&) = delete;

  void keep() { made_.clear(); }

 private:
  void removeMade();

  std::vector<std::filesystem::path> made_;  // the innermost last
};

}  // namespace base
