#include "base/OutputFile.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <utility>

#include "base/FileReasons.h"

namespace base {
namespace {

namespace fs = std::filesystem;

/// A write beyond the limit on the size of a file is to fail like one on a full disk; as a signal
/// it would end the program.
class NoSizeSignal {
 public:
  NoSizeSignal() {
    sigemptyset(&signal_);
    sigaddset(&signal_, SIGXFSZ);
    pthread_sigmask(SIG_BLOCK, &signal_, &old_);
  }
  ~NoSizeSignal() {
    const timespec now{};
    while (sigtimedwait(&signal_, nullptr, &now) > 0) {
    }
    pthread_sigmask(SIG_SETMASK, &old_, nullptr);
  }
  NoSizeSignal(const NoSizeSignal&) = delete;
  NoSizeSignal& operator=(const NoSizeSignal&) = delete;

 private:
  sigset_t signal_{};
  sigset_t old_{};
};

bool isSameFile(int descriptor, const fs::path& file) {
  struct stat opened {};
  struct stat named {};
  return fstat(descriptor, &opened) == 0 && lstat(file.c_str(), &named) == 0 &&
         opened.st_ino == named.st_ino && opened.st_dev == named.st_dev;
}

void keepMode(int descriptor, const fs::path& file) {
  struct stat old {};
  if (stat(file.c_str(), &old) == 0) {
    static_cast<void>(fchmod(descriptor, old.st_mode & 07777U));
  }
}

/// 0, or the number of the error.
int moveIfFree(const fs::path& from, const fs::path& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // A file system that can't do it has links.
  if (::link(from.c_str(), to.c_str()) != 0) return errno;
  ::unlink(from.c_str());
  return 0;
}

}  // namespace

void flushFolder(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return;
  static_cast<void>(fsync(descriptor));
  ::close(descriptor);
}

// Two programs that write one file write one after the other and never into one file: who waited
// finds that the name has moved on and opens it anew.
OutputFile::OutputFile(fs::path beside, fs::path target, mode_t mode)
    : beside_(std::move(beside)), target_(std::move(target)) {
  constexpr int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
  while (true) {
    descriptor_ = ::open(beside_.c_str(), flags, mode);
    if (descriptor_ < 0) fail(errno);
    const bool isLocked = flock(descriptor_, LOCK_EX) == 0;
    if (isLocked && isSameFile(descriptor_, beside_)) break;
    const int error = errno;
    ::close(descriptor_);
    if (!isLocked) fail(error);
  }
  if (ftruncate(descriptor_, 0) == 0) return;
  const int error = errno;
  ::close(descriptor_);
  fail(error);
}

OutputFile::~OutputFile() {
  if (!isPlaced_) ::unlink(beside_.c_str());
  ::close(descriptor_);
}

void OutputFile::write(std::string_view bytes) {
  const NoSizeSignal noSizeSignal;
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) fail(errno);
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
}

void OutputFile::replace() {
  flush();
  keepMode(descriptor_, target_);
  if (::rename(beside_.c_str(), target_.c_str()) != 0) fail(errno);
  isPlaced_ = true;
  flushFolder(target_.parent_path());
}

bool OutputFile::takeFreePlace() {
  flush();
  const int error = moveIfFree(beside_, target_);
  if (error == EEXIST) return false;
  if (error != 0) fail(error);
  isPlaced_ = true;
  flushFolder(target_.parent_path());
  return true;
}

void OutputFile::flush() const {
  const NoSizeSignal noSizeSignal;
  if (fsync(descriptor_) != 0) fail(errno);
}

void OutputFile::fail(int errorNumber) const { failToWrite(target_, errorNumber); }

}  // namespace base
