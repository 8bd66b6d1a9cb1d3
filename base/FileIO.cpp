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

#include "base/Error.h"
#include "base/FileReasons.h"
#include "base/OutputFile.h"

namespace base {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void failToReadFor(const fs::path& file, const std::string& reason) {
  const std::string path = file.string();
  throw FileError("Can't read \"" + path + "\": " + reason);
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
  failToReadFor(file, readingReason(errorNumber));
}

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  int number() const { return number_; }
  bool isOpen() const { return number_ >= 0; }

 private:
  int number_;
};

/// What a link leads to, or the path itself.
fs::path behindLinks(const fs::path& file) {
  std::error_code error;
  const fs::path target = fs::canonical(file, error);
  return error ? file : target;
}

fs::path besideOf(const fs::path& file) {
  const std::string name = file.filename().string();
  return file.parent_path() / ("." + name + ".saving");
}

/// By its permissions: to the superuser every file can be written.
bool isProtected(const fs::path& file) {
  struct stat status {};
  constexpr mode_t anyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
  if (stat(file.c_str(), &status) != 0) return false;
  return (status.st_mode & anyWriter) == 0 || ::access(file.c_str(), W_OK) != 0;
}

}  // namespace

bool isSameFile(const fs::path& one, const fs::path& other) {
  std::error_code error;
  if (fs::equivalent(one, other, error)) return true;
  return one.lexically_normal() == other.lexically_normal();
}

std::string readFile(const fs::path& file, std::uintmax_t most) {
  const Descriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (!opened.isOpen()) failToRead(file, errno);
  struct stat status {};
  if (fstat(opened.number(), &status) != 0) failToRead(file, errno);
  if (std::cmp_greater(status.st_size, most)) failToReadFor(file, "it is too large.");
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

void removeFile(const fs::path& file) {
  std::error_code error;
  fs::remove(file, error);
  if (error) {
    const std::string path = file.string();
    throw FileError("Can't remove \"" + path + "\": " + systemReason(error.value()));
  }
  flushFolder(file.parent_path());
}

fs::path placeAside(const fs::path& file) {
  const std::string name = file.string() + ".unreadable";
  fs::path place = name;
  std::error_code error;
  for (int number = 2; fs::exists(fs::symlink_status(place, error)); ++number) {
    place = name + "-" + std::to_string(number);
  }
  return place;
}

void replaceFile(const fs::path& named, std::string_view content) {
  const fs::path file = behindLinks(named);
  std::error_code ignored;
  if (fs::is_directory(file, ignored)) failToWrite(named, EISDIR);
  if (isProtected(file)) {
    const std::string path = named.string();
    throw FileError("Can't write \"" + path +
                    "\": it is protected against writing. Take the protection away or choose "
                    "another name.");
  }
  OutputFile output(besideOf(file), file);
  output.write(content);
  output.replace();
}

bool createFile(const fs::path& file, std::string_view content) {
  OutputFile output(besideOf(file), file);
  output.write(content);
  return output.takeFreePlace();
}

FolderLock::FolderLock(const fs::path& folder, IfTaken ifTaken)
    : descriptor_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (descriptor_ < 0) return;
  const int how = ifTaken == IfTaken::wait ? LOCK_EX : LOCK_EX | LOCK_NB;
  isHeld_ = flock(descriptor_, how) == 0 || errno != EWOULDBLOCK;
}

FolderLock::~FolderLock() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

FileUse::FileUse(const fs::path& file, Kind kind)
    : descriptor_(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (descriptor_ < 0) return;
  const int how = kind == Kind::alone ? LOCK_EX : LOCK_SH;
  isHeld_ = flock(descriptor_, how | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

FileUse::~FileUse() {
  if (descriptor_ >= 0) ::close(descriptor_);
}

}  // namespace base
