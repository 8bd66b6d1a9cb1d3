#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace base {

/// The whole content of a file. Raises FileError with the file and the reason, also for one of more
/// than `most` bytes.
std::string readFile(const std::filesystem::path& file, std::uintmax_t most = UINTMAX_MAX);

/// Replaces a file's content: writes a file beside it, flushes it to the disk and renames it, so
/// that at every moment the file holds the old or the new content, whole. A link stays a link.
/// Raises FileError with the file and the reason, and then the old content is untouched; a file
/// that nobody may write is refused.
void replaceFile(const std::filesystem::path& file, std::string_view content);

/// As above for a file that is not there yet. False, and nothing is changed, when one is: of two
/// programs that make the same file at once, one gets false.
[[nodiscard]] bool createFile(const std::filesystem::path& file, std::string_view content);

/// Removes a file, if it is there. Raises FileError with the file and the reason.
void removeFile(const std::filesystem::path& file);

/// Where a file that can't be read is moved to, beside it and under a name that is free.
std::filesystem::path placeAside(const std::filesystem::path& file);

/// Whether the two paths lead to one file, which need not be there.
bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// While it lives, no other program has a lock on the folder, also past a crash of its process.
/// Without the folder there is none to wait for.
class FolderLock {
 public:
  enum class IfTaken { wait, giveUp };

  explicit FolderLock(const std::filesystem::path& folder, IfTaken ifTaken = IfTaken::wait);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  /// False when another program has the lock and was not waited for.
  bool isHeld() const { return isHeld_; }

 private:
  int descriptor_;
  bool isHeld_ = true;
};

/// While it lives, a program works with a file: several that show it side by side, or one alone
/// that changes it unattended. It ends with the process, also past a crash, and when the file is
/// replaced.
class FileUse {
 public:
  enum class Kind { shared, alone };

  /// Waits for nobody. A file that can't be opened is in nobody's use.
  FileUse(const std::filesystem::path& file, Kind kind);
  ~FileUse();
  FileUse(const FileUse&) = delete;
  FileUse& operator=(const FileUse&) = delete;

  /// False when another program's use stands against it.
  bool isHeld() const { return isHeld_; }

 private:
  int descriptor_;
  bool isHeld_ = true;
};

}  // namespace base
