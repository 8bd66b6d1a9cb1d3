#include "base/FileSet.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <system_error>

#include "base/FileReasons.h"
#include "base/OutputFile.h"

namespace base {
namespace {

namespace fs = std::filesystem;

/// For many files one wait, in the place of one for each.
void flushFileSystem(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  const bool isFlushed = descriptor >= 0 && ::syncfs(descriptor) == 0;
  const int error = errno;
  if (descriptor >= 0) ::close(descriptor);
  if (!isFlushed) failToWrite(folder, error);
}

}  // namespace

FileSet::FileSet(const fs::path& folder)
    : made_(folder), lock_(folder), folder_(folder), aside_(folder / ".saving") {
  removeAside();  // what an earlier run left that was killed
  std::error_code error;
  if (!fs::create_directory(aside_, error)) failToWrite(aside_, error.value());
}

FileSet::~FileSet() { removeAside(); }

void FileSet::add(const std::string& name, std::string_view content) {
  std::ofstream file(aside_ / name, std::ios::binary);
  file << content;
  file.close();
  if (!file) failToWrite(folder_ / name, errno);
  names_.push_back(name);
}

void FileSet::place() {
  flushFileSystem(aside_);
  for (const std::string& name : names_) {
    if (::rename((aside_ / name).c_str(), (folder_ / name).c_str()) != 0) {
      failToWrite(folder_ / name, errno);
    }
  }
  made_.keep();
  flushFolder(folder_);
}

void FileSet::removeAside() const {
  std::error_code ignored;
  fs::remove_all(aside_, ignored);
}

}  // namespace base
