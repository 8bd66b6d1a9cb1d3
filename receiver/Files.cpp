#include "receiver/Files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <system_error>
#include <utility>

#include "receiver/Error.h"

namespace receiver {
namespace {

constexpr mode_t ownerOnly = 0600;

[[noreturn]] void fail(const char* what, const std::filesystem::path& path, int error) {
  throw Error("Cannot " + std::string(what) + " " + path.string() + ": " +
              std::generic_category().message(error) + ".");
}

/// So that the disk has the new name of a file too. A file system that cannot do it is no failure:
/// the file is whole under either name.
void syncFolder(const std::filesystem::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  static_cast<void>(::fsync(descriptor));
  ::close(descriptor);
}

}  // namespace

OutputFile::OutputFile(std::filesystem::path path)
    : path_(std::move(path)),
      descriptor_(::open(path_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, ownerOnly)) {
  if (descriptor_ < 0) fail("write", path_, errno);
}

OutputFile::~OutputFile() {
  close();
  if (!replaced_) ::unlink(path_.c_str());
}

void OutputFile::write(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) fail("write", path_, errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void OutputFile::replace(const std::filesystem::path& target) {
  if (::fsync(descriptor_) != 0) fail("write", path_, errno);
  close();
  if (::rename(path_.c_str(), target.c_str()) != 0) fail("replace", target, errno);
  replaced_ = true;
  syncFolder(target.parent_path());
}

void OutputFile::close() {
  if (descriptor_ >= 0) ::close(descriptor_);
  descriptor_ = -1;
}

FolderLock::FolderLock(const std::filesystem::path& folder) {
  const std::filesystem::path path = folder / ".lock";
  descriptor_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, ownerOnly);
  if (descriptor_ < 0) fail("write", path, errno);
  if (::flock(descriptor_, LOCK_EX | LOCK_NB) == 0) return;
  const int error = errno;
  ::close(descriptor_);
  if (error != EWOULDBLOCK) fail("lock", path, error);
  throw Error("The folder " + folder.string() +
              " belongs to another receiver that runs. Give each receiver a folder of its own.");
}

FolderLock::~FolderLock() { ::close(descriptor_); }

std::string readFile(const std::filesystem::path& path, std::uintmax_t most) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) fail("read", path, error.value());
  if (size > most) throw Error("The file " + path.string() + " is too large.");
  std::string bytes(static_cast<std::size_t>(size), '\0');
  std::ifstream file(path, std::ios::binary);
  if (!file.read(bytes.data(), static_cast<std::streamsize>(size))) fail("read", path, EIO);
  return bytes;
}

void removeFile(const std::filesystem::path& path) {
  std::error_code error;
  std::filesystem::remove(path, error);
  if (error) fail("remove", path, error.value());
  syncFolder(path.parent_path());
}

}  // namespace receiver
