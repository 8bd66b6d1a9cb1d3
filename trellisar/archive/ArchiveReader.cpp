#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <set>
#include <system_error>
#include <utility>

#include "base/FileIO.h"
#include "base/FileReasons.h"
#include "base/MadeFolders.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "program/ProgramText.h"
#include "trellisar/archive/Archive.h"
#include "trellisar/archive/ArchiveHandle.h"
#include "trellisar/document/ProgramFile.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/document/SystemNames.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largestArchive = 64U << 20U;
constexpr std::size_t largestContent = 128U << 20U;
constexpr std::size_t mostEntries = 1000;
constexpr std::size_t longestName = 255;

struct Unpacked {
  std::string name;
  std::string content;
};

/// Why a name can't be that of a file below the folder; empty when it can.
std::string entryProblem(const std::string& name) {
  if (name.empty() || name.size() > longestName) return "has no usable name";
  if (forms::fromCodePoints(forms::toCodePoints(name)) != name) return "has no usable name";
  if (name.front() == '/') return "leads out of the system's folder";
  for (const char c : name) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\\' || c == 0x7F) return "has no usable name";
  }
  std::size_t start = 0;
  while (start <= name.size()) {
    const std::size_t end = std::min(name.find('/', start), name.size());
    const std::string part = name.substr(start, end - start);
    if (part == "..") return "leads out of the system's folder";
    if (part.empty() || part == ".") return "has no usable name";
    start = end + 1;
  }
  return {};
}

/// Reads all of a zip file into memory, within limits, and refuses what no system's archive holds.
class ZipReader {
 public:
  explicit ZipReader(const fs::path& file) : shown_(file.filename().string()) {
    std::error_code error;
    const auto size = fs::file_size(file, error);
    if (!error && size > largestArchive) refuse("it is larger than 64 MB");
    bytes_ = base::readFile(file);
  }

  std::vector<Unpacked> read() {
    zip_.reset(archive_read_new());
    if (!zip_) throw std::bad_alloc();
    // By its directory at the end alone, as other programs read it.
    check(archive_read_support_format_zip_seekable(zip_.get()));
    check(archive_read_open_memory(zip_.get(), bytes_.data(), bytes_.size()));
    struct archive_entry* entry = nullptr;
    int status = archive_read_next_header(zip_.get(), &entry);
    for (; status == ARCHIVE_OK; status = archive_read_next_header(zip_.get(), &entry)) {
      take(*entry);
    }
    if (status != ARCHIVE_EOF) check(status);
    return std::move(files_);
  }

  [[noreturn]] void refuse(const std::string& why) const {
    throw host::Error(host::errBadFile,
                      "The archive \"" + shown_ + "\" can't be opened: " + why + ".");
  }

 private:
  void check(int status) const {
    if (status == ARCHIVE_OK) return;
    const char* reason = archive_error_string(zip_.get());
    refuse(std::string("it is damaged or no archive (") + (reason ? reason : "unknown error") +
           ")");
  }

  void take(struct archive_entry& entry) {
    if (++count_ > mostEntries) refuse("it holds more than 1,000 entries");
    const char* utf8 = archive_entry_pathname_utf8(&entry);
    std::string name = utf8 ? utf8 : "";
    const bool isFolder = archive_entry_filetype(&entry) == AE_IFDIR;
    if (isFolder && name.ends_with('/')) name.pop_back();
    const std::string which = "its entry \"" + name + "\" ";
    if (const std::string problem = entryProblem(name); !problem.empty()) refuse(which + problem);
    if (!names_.insert(forms::lowerCase(name)).second) refuse(which + "stands twice");
    if (isFolder) return;
    const bool isLink = archive_entry_symlink(&entry) || archive_entry_hardlink(&entry);
    if (isLink || archive_entry_filetype(&entry) != AE_IFREG) refuse(which + "is no plain file");
    if (archive_entry_is_encrypted(&entry)) refuse(which + "is protected by a password");
    files_.push_back({name, content(entry, which)});
  }

  std::string content(struct archive_entry& entry, const std::string& which) {
    std::string content;
    char block[64 * 1024];
    while (true) {
      const la_ssize_t count = archive_read_data(zip_.get(), block, sizeof block);
      if (count < 0) check(static_cast<int>(count));
      if (count == 0) break;
      total_ += static_cast<std::size_t>(count);
      if (total_ > largestContent) refuse("it holds more than 128 MB");
      content.append(block, static_cast<std::size_t>(count));
    }
    const bool hasSize = archive_entry_size_is_set(&entry);
    if (!hasSize || archive_entry_size(&entry) != static_cast<la_int64_t>(content.size())) {
      refuse(which + "is not as large as the archive says");
    }
    return content;
  }

  std::string shown_;
  std::string bytes_;
  Utf8Names utf8_;
  ArchiveHandle zip_;
  std::size_t count_ = 0;
  std::size_t total_ = 0;
  std::set<std::string> names_;
  std::vector<Unpacked> files_;
};

/// A new folder that goes with all that is in it unless it is moved to its place. It is locked
/// while somebody fills it; one that is there without a lock was left by a program that was ended.
class FolderAside {
 public:
  explicit FolderAside(const fs::path& parent) {
    for (int number = 0; number < 100 && folder_.empty(); ++number) {
      take(parent / (".opening-" + std::to_string(number)));
    }
    if (folder_.empty()) fail(parent, std::make_error_code(std::errc::file_exists));
  }
  ~FolderAside() {
    std::error_code ignored;
    if (!folder_.empty()) fs::remove_all(folder_, ignored);
    if (lock_ >= 0) ::close(lock_);
  }
  FolderAside(const FolderAside&) = delete;
  FolderAside& operator=(const FolderAside&) = delete;

  const fs::path& path() const { return folder_; }

  void write(const Unpacked& file) const {
    const fs::path path = folder_ / file.name;
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (error) fail(path.parent_path(), error);
    base::replaceFile(path, file.content);
  }

  void moveTo(const fs::path& folder) {
    std::error_code error;
    fs::rename(folder_, folder, error);
    if (error) fail(folder, error);
    folder_.clear();
  }

 private:
  /// Makes and locks the folder; one that somebody else fills is left to them.
  void take(const fs::path& folder) {
    std::error_code error;
    fs::create_directory(folder, error);
    if (error) fail(folder.parent_path(), error);
    lock_ = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (lock_ >= 0 && ::flock(lock_, LOCK_EX | LOCK_NB) == 0) {
      for (const auto& old : fs::directory_iterator(folder, error)) fs::remove_all(old, error);
      folder_ = folder;
    } else if (lock_ >= 0) {
      ::close(std::exchange(lock_, -1));
    }
  }

  [[noreturn]] static void fail(const fs::path& folder, const std::error_code& error) {
    throw host::Error(host::errFile, "Can't make the folder \"" + folder.string() +
                                         "\": " + base::systemReason(error.value()));
  }

  fs::path folder_;
  int lock_ = -1;
};

/// The one system file at the top of the archive.
std::string systemFileIn(const std::vector<Unpacked>& files, const ZipReader& reader) {
  std::string found;
  for (const Unpacked& file : files) {
    const bool isOnTop = file.name.find('/') == std::string::npos;
    if (!isOnTop || fs::path(file.name).extension() != ".tsy") continue;
    if (!found.empty()) reader.refuse("it holds more than one system");
    if (!fileNameProblem(fs::path(file.name).stem().string()).empty()) {
      reader.refuse("its system has no usable name");
    }
    found = file.name;
  }
  if (found.empty()) reader.refuse("it holds no system");
  return found;
}

/// The zip library gives names in composed letters, whatever the archive has. A program that the
/// system names in others lies beside it under the system's own name; it is named so from now on.
void renameProgram(DocumentData& document) {
  const std::string name = document.ownFile.stem().string() + ".tsp";
  std::error_code error;
  if (!fs::is_regular_file(document.ownFile.parent_path() / name, error)) return;
  document.compiledProgram = name;
  saveSystemFile(document, forms::fromMachinePath(document.ownFile));
}

/// Raises what reading a system raises, and refuses one whose compiled program is not whole.
void checkSystem(const fs::path& file, const ZipReader& reader) {
  const DocumentPtr document = readSystemFile(file, nullptr);
  if (document->compiledProgram.empty()) return;
  const std::string name = "\"" + document->compiledProgram + "\"";
  std::error_code error;
  if (!fs::is_regular_file(storedProgramFile(*document), error)) renameProgram(*document);
  const fs::path stored = storedProgramFile(*document);
  if (!fs::is_regular_file(stored, error)) reader.refuse("it lacks the compiled program " + name);
  try {
    program::requireWholeProgram(base::readFile(stored), stored.filename().string());
  } catch (const program::EarlierForm&) {
    // The system is compiled again before the program goes anywhere.
  } catch (const base::ContentError&) {
    reader.refuse("the compiled program " + name + " is damaged");
  }
}

}  // namespace

fs::path unpackArchive(const fs::path& archive, const fs::path& parent) {
  return raisingHostErrors([&] {
    ZipReader reader(archive);
    const std::vector<Unpacked> files = reader.read();
    const std::string system = systemFileIn(files, reader);
    const fs::path folder = parent / fs::path(system).stem();
    std::error_code error;
    if (fs::exists(folder, error) && !fs::is_empty(folder, error)) {
      throw host::Error(host::errFile, "The folder \"" + folder.string() +
                                           "\" is there already. Choose another place for the "
                                           "system of the archive.");
    }
    base::MadeFolders folders(parent);
    FolderAside aside(parent);
    for (const Unpacked& file : files) aside.write(file);
    checkSystem(aside.path() / system, reader);
    aside.moveTo(folder);
    folders.keep();
    return folder / system;
  });
}

}  // namespace trellisar
