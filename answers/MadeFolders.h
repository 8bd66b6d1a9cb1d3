#pragma once

#include <filesystem>
#include <set>

namespace answers {

/// The folders that a run may make, so that one which ends before its save can take them away
/// again.
class MadeFolders {
 public:
  /// Notes which folders of the path, itself included, are not there yet.
  void expect(const std::filesystem::path& folder);

  /// Removes those that are there now and empty.
  void removeEmpty() const;

 private:
  std::set<std::filesystem::path> missing_;
};

}  // namespace answers
