#include "trellisar/recovery/RecoverySlot.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <system_error>

#include "base/FileReasons.h"
#include "base/MadeFolders.h"
#include "base/OutputFile.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(file, error);
}

std::chrono::system_clock::time_point timeOf(const fs::path& file) {
  std::error_code error;
  const auto time = fs::last_write_time(file, error);
  return error ? std::chrono::system_clock::time_point()
               : std::chrono::time_point_cast<std::chrono::system_clock::duration>(
                     std::chrono::file_clock::to_sys(time));
}

}  // namespace

// Who makes a place or looks for those of others has the folder of all to himself meanwhile, so
// that no place is seen before it is locked.
std::shared_ptr<RecoverySlot> RecoverySlot::make(const fs::path& all) {
  base::MadeFolders folders(all);
  const base::FolderLock alone(all);
  std::string folder = (all / "XXXXXX").string();
  if (!mkdtemp(folder.data())) base::failToWrite(all / "recovery", errno);
  auto slot = std::make_shared<RecoverySlot>(folder);
  base::flushFolder(all);
  base::flushFolder(all.parent_path());
  folders.keep();
  return slot;
}

std::vector<std::shared_ptr<RecoverySlot>> RecoverySlot::left(const fs::path& all) {
  std::vector<std::shared_ptr<RecoverySlot>> found;
  if (!isThere(all)) return found;
  const base::FolderLock alone(all);
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(all, error)) {
    if (!entry.is_directory(error)) continue;
    auto slot = std::make_shared<RecoverySlot>(entry.path());
    if (!slot->lock_.isHeld()) continue;
    isThere(slot->file()) ? found.push_back(std::move(slot)) : slot->removeFolder();
  }
  std::sort(found.begin(), found.end(), [](const auto& one, const auto& other) {
    return timeOf(one->file()) < timeOf(other->file());
  });
  return found;
}

std::time_t RecoverySlot::lastSign() const {
  return std::chrono::system_clock::to_time_t(timeOf(file()));
}

void RecoverySlot::setLastSign(std::time_t time) const {
  std::error_code ignored;
  fs::last_write_time(
      file(), std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(time)),
      ignored);
}

void RecoverySlot::remove() {
  base::removeFile(file());
  removeFolder();
}

fs::path RecoverySlot::moveAside() {
  const fs::path aside = base::placeAside(folder_.string() + ".tsr");
  std::error_code error;
  fs::rename(file(), aside, error);
  if (error) return {};
  removeFolder();
  return aside;
}

/// With what a write left that was broken off.
void RecoverySlot::removeFolder() const {
  std::error_code ignored;
  fs::remove(folder_ / ".unsaved.tsr.saving", ignored);
  fs::remove(folder_, ignored);
}

}  // namespace trellisar
