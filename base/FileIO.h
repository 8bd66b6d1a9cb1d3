#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace trellisar {

/// The whole content of a file. Raises host::Error errFile with the file and the reason.
std::string readFile(const std::filesystem::path& file);

/// Replaces a file's content: writes a file beside it, flushes it to the disk and renames it, so
/// that at every moment the file holds the old or the new content, whole. A link stays a link.
/// Raises host::Error errFile with the file and the reason, and then the old content is untouched;
/// a file that nobody may write is refused.
void replaceFile(const std::filesystem::path& file, std::string_view content);

/// As above for a file that is not there yet. False, and nothing is changed, when one is: of two
/// programs that make the same file at once, one gets false.
[[nodiscard]] bool createFile(const std::filesystem::path& file, std::string_view content);

/// Whether the two paths lead to one file, which need not be there.
bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// While it lives, no other program has a lock on the folder; who wants one waits. Without the
/// folder there is none to wait for.
class FolderLock {
 public:
  explicit FolderLock(const std::filesystem::path& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  int descriptor_;
};

/// Why a file or folder can't be made or written, for the number of a failed system call: "the disk
/// is full. Make room or choose another folder."
std::string systemReason(int errorNumber);

}  // namespace trellisar
