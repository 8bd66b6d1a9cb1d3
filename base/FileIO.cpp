#include "base/FileIO.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <ctime>
#include <system_error>
#include <utility>

#include "host/Error.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const char* what, const fs::path& file, const std::string& reason) {
  const std::string path = file.string();
  throw host::Error(host::errFile, std::string(what) + " \"" + path + "\": " + reason);
}

std::string readingReason(int errorNumber) {
  switch (errorNumber) {
    case ENOENT:
      return "it does not exist.";
    case ENOTDIR:
      return "a file stands where one of its folders should be.";
    case EISDIR:
      return "it is a folder and no file.";
    case EACCES:
    case EPERM:
      return "access is denied. You need the right to read it.";
    case ENAMETOOLONG:
      return "the name is too long.";
    default:
      return std::generic_category().message(errorNumber) + ".";
  }
}

[[noreturn]] void failToRead(const fs::path& file, int errorNumber) {
  fail("Can't read", file, readingReason(errorNumber));
}

/// The system says the same of a folder that is missing and of one that takes no files.
[[noreturn]] void failToWrite(const fs::path& file, int errorNumber) {
  std::error_code error;
  const bool hasFolder = file.parent_path().empty() || fs::is_directory(file.parent_path(), error);
  if (errorNumber == ENOENT && !hasFolder) {
    fail("Can't write", file, "its folder does not exist. Make it, or choose another one.");
  }
  fail("Can't write", file, systemReason(errorNumber));
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  Descriptor& operator=(Descriptor&&) = delete;

  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

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

/// Opens the file that is written beside `file`, for this writer alone. Two programs that save the
/// same system write one after the other and never into one file: who waited finds that the name
/// has moved on and opens it anew.
Descriptor openBeside(const fs::path& beside, const fs::path& file) {
  while (true) {
    Descriptor opened(
        ::open(beside.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0666));
    if (!opened.isOpen()) failToWrite(file, errno);
    if (flock(opened.number(), LOCK_EX) != 0) failToWrite(file, errno);
    if (isSameFile(opened.number(), beside)) return opened;
  }
}

/// 0, or the number of the error.
int writeAll(int descriptor, std::string_view content) {
  if (ftruncate(descriptor, 0) != 0) return errno;
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return fsync(descriptor) == 0 ? 0 : errno;
}

/// What a link leads to, or the path itself.
fs::path behindLinks(const fs::path& file) {
  std::error_code error;
  const fs::path target = fs::canonical(file, error);
  return error ? file : target;
}

void keepMode(int descriptor, const fs::path& file) {
  struct stat old {};
  if (stat(file.c_str(), &old) == 0) {
    static_cast<void>(fchmod(descriptor, old.st_mode & 07777U));
  }
}

void flushFolder(const fs::path& folder) {
  const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened.isOpen()) static_cast<void>(fsync(opened.number()));
}

/// By its permissions: to the superuser every file can be written.
bool isProtected(const fs::path& file) {
  struct stat status {};
  constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
  if (stat(file.c_str(), &status) != 0) return false;
  return (status.st_mode & anyWriter) == 0 || ::access(file.c_str(), W_OK) != 0;
}

/// 0, or the number of the error, like the next one.
int moveOver(const fs::path& from, const fs::path& to) {
  return ::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

int moveIfFree(const fs::path& from, const fs::path& to) {
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  // A file system that can't do it has links.
  if (::link(from.c_str(), to.c_str()) != 0) return errno;
  ::unlink(from.c_str());
  return 0;
}

/// Writes beside the file and moves that to its place; 0, or the number of the error, and then
/// nothing is left of it.
int put(const fs::path& file, std::string_view content,
        int (*move)(const fs::path& from, const fs::path& to)) {
  const std::string name = file.filename().string();
  const fs::path beside = file.parent_path() / ("." + name + ".saving");
  const NoSizeSignal noSizeSignal;
  const Descriptor opened = openBeside(beside, file);
  int error = writeAll(opened.number(), content);
  if (error == 0) {
    keepMode(opened.number(), file);
    error = move(beside, file);
  }
  if (error == 0) {
    flushFolder(file.parent_path());
  } else {
    ::unlink(beside.c_str());
  }
  return error;
}

}  // namespace

bool isSameFile(const fs::path& one, const fs::path& other) {
  std::error_code error;
  if (fs::equivalent(one, other, error)) return true;
  return one.lexically_normal() == other.lexically_normal();
}

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

std::string readFile(const fs::path& file) {
  const Descriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!opened.isOpen()) failToRead(file, errno);
  struct stat status {};
  if (fstat(opened.number(), &status) != 0) failToRead(file, errno);
  std::string content;
  content.reserve(static_cast<std::size_t>(status.st_size) + 1);
  char buffer[64 * 1024];
  while (true) {
    const ssize_t count = ::read(opened.number(), buffer, sizeof buffer);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) failToRead(file, errno);
    if (count == 0) return content;
    content.append(buffer, static_cast<std::size_t>(count));
  }
}

void replaceFile(const fs::path& named, std::string_view content) {
  const fs::path file = behindLinks(named);
  std::error_code ignored;
  if (fs::is_directory(file, ignored)) failToWrite(named, EISDIR);
  if (isProtected(file)) {
    throw host::Error(host::errFile, "Can't write \"" + named.string() +
                                         "\": it is protected against writing. Take the "
                                         "protection away or choose another name.");
  }
  if (const int error = put(file, content, moveOver)) failToWrite(named, error);
}

bool createFile(const fs::path& file, std::string_view content) {
  const int error = put(file, content, moveIfFree);
  if (error != 0 && error != EEXIST) failToWrite(file, error);
  return error == 0;
}

FolderLock::FolderLock(const fs::path& folder)
    : descriptor_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (descriptor_ >= 0) static_cast<void>(flock(descriptor_, LOCK_EX));
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace trellisar
