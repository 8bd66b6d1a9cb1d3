#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/FileIO.h"
#include "base/MadeFolders.h"

namespace base {

/// Files of one folder that appear together: they are written aside, and take their places, in that
/// of what stands there, when all of them are written. Without `place` the folder is as it was. Who
/// has a set of files for the same folder waits until this one is gone.
///
/// All members raise FileError, which names the file or the folder.
class FileSet {
 public:
  /// Makes the folder where it is not there.
  explicit FileSet(const std::filesystem::path& folder);
  ~FileSet();
  FileSet(const FileSet&) = delete;
  FileSet& operator=(const FileSet&) = delete;

  void add(const std::string& name, std::string_view content);
  /// When it returns, the disk has all of them.
  void place();

 private:
  void removeAside() const;

  MadeFolders made_;
  FolderLock lock_;
  std::filesystem::path folder_;
  std::filesystem::path aside_;
  std::vector<std::string> names_;
};

}  // namespace base
