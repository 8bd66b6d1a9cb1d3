#include "base/FileReasons.h"

#include <cerrno>
#include <system_error>

#include "base/Error.h"

namespace base {

namespace fs = std::filesystem;

std::string systemReason(int errorNumber) {
  switch (errorNumber) {
    case ENOSPC:
    case EDQUOT:
      return "the disk is full. Make room or choose another folder.";
    case EFBIG:
      return "the file would be larger than the disk or its limit allows. Choose another folder.";
    case EACCES:
    case EPERM:
      return "access is denied. Choose a folder that you may write to.";
    case EROFS:
      return "the disk can only be read. Choose another folder.";
    case ENOENT:
      return "the place can't hold files. Choose another folder.";
    case ENOTDIR:
      return "a file stands where a folder should be. Choose another folder.";
    case EISDIR:
      return "a folder stands where the file should be. Choose another name.";
    case ENAMETOOLONG:
      return "the name is too long. Choose a shorter one.";
    default:
      return std::generic_category().message(errorNumber) + ".";
  }
}

void failToWrite(const fs::path& file, int errorNumber) {
  std::error_code error;
  const bool hasFolder = file.parent_path().empty() || fs::is_directory(file.parent_path(), error);
  const std::string path = file.string();
  const bool lacksFolder = errorNumber == ENOENT && !hasFolder;
  throw FileError("Can't write \"" + path + "\": " +
                  (lacksFolder ? "its folder does not exist. Make it, or choose another one."
                               : systemReason(errorNumber)));
}

}  // namespace base
