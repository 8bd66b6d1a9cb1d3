#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string_view>

namespace base {

/// A file that is written from its beginning beside another one, whose place it then takes: at
/// every moment that other file holds the old or the new content, whole. Without that it goes with
/// the object.
///
/// All members raise FileError, which names the other file.
class OutputFile {
 public:
  /// Both in one folder. Who opens the same `beside` while another program writes it waits until
  /// that one is done. `mode`: the permissions of a new file, from which the process's mask is
  /// taken.
  OutputFile(std::filesystem::path beside, std::filesystem::path target, mode_t mode = 0666);
  ~OutputFile();
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void write(std::string_view bytes);

  /// Takes the place of the target, with its permissions where it is there: when it returns, the
  /// disk has it. Nothing is written any more.
  void replace();
  /// As above where there is no target yet; False where there is one, which stays.
  [[nodiscard]] bool takeFreePlace();

 private:
  void flush() const;
  [[noreturn]] void fail(int errorNumber) const;

  std::filesystem::path beside_;
  std::filesystem::path target_;
  int descriptor_ = -1;
  bool isPlaced_ = false;
};

/// So that the disk has the names of the folder's files too. A file system that can't do it is no
/// failure: each file is whole under either name.
void flushFolder(const std::filesystem::path& folder);

}  // namespace base
