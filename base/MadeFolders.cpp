#include "base/MadeFolders.h"

#include <cerrno>
#include <system_error>

#include "base/Error.h"
#include "base/FileReasons.h"

namespace base {

namespace fs = std::filesystem;

MadeFolders::MadeFolders(const fs::path& folder) {
  fs::path path;
  for (const fs::path& part : folder) {
    path /= part;
    if (part.empty()) continue;
    std::error_code error;
    if (fs::create_directory(path, error)) made_.push_back(path);
    if (!error && fs::is_directory(path, error)) continue;
    const bool isFile = !error || error == std::errc::file_exists;
    const std::string reason = systemReason(isFile ? ENOTDIR : error.value());
    removeMade();
    throw FileError("Can't make the folder \"" + folder.string() + "\": " + reason);
  }
}

MadeFolders::~MadeFolders() { removeMade(); }

void MadeFolders::removeMade() {
  std::error_code ignored;
  while (!made_.empty()) {
    fs::remove(made_.back(), ignored);
    made_.pop_back();
  }
}

}  // namespace base
