#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace receiver {

/// A file that is written from its beginning, under its own name or to be renamed over another. It
/// can be read by nobody but its owner. All members raise Error with the path and the machine's
/// reason.
class OutputFile {
 public:
  explicit OutputFile(std::filesystem::path path);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void write(std::string_view bytes);
  /// Takes the place of `target` in the same folder: when it returns, the disk has it. Up to that
  /// moment a crash leaves the old file whole. Nothing is written any more.
  void replace(const std::filesystem::path& target);

 private:
  void close();

  std::filesystem::path path_;
  int descriptor_ = -1;
  bool replaced_ = false;  // otherwise the file goes with the object
};

/// Keeps other processes out of a folder while it lives, also past a crash of its process. Raises
/// Error when another one holds the folder.
class FolderLock {
 public:
  explicit FolderLock(const std::filesystem::path& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  int descriptor_ = -1;
};

/// The whole file. Raises Error when it cannot be read or has more than `most` bytes.
std::string readFile(const std::filesystem::path& path, std::uintmax_t most);

/// Raises Error.
void removeFile(const std::filesystem::path& path);

}  // namespace receiver
