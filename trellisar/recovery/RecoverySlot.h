#pragma once

#include <ctime>
#include <filesystem>
#include <memory>
#include <vector>

#include "base/FileIO.h"

namespace trellisar {

/// The place of one recovery file, which belongs to one program for as long as that one runs: a
/// folder of its own, locked past a crash of anybody else and no longer than its owner lives.
class RecoverySlot {
 public:
  /// Makes a new one in the folder of all, which is made where it is missing. Raises
  /// base::FileError.
  static std::shared_ptr<RecoverySlot> make(const std::filesystem::path& all);
  /// Those that programs have left that run no longer, the oldest file first. They belong to this
  /// program then.
  static std::vector<std::shared_ptr<RecoverySlot>> left(const std::filesystem::path& all);

  std::filesystem::path file() const { return folder_ / "unsaved.tsr"; }

  /// When its program is known to have run last.
  std::time_t lastSign() const;
  void setLastSign(std::time_t time) const;

  /// Removes the file with its place. Raises base::FileError.
  void remove();
  /// Moves a file that can't be read aside, and answers where it is kept; empty: it had to stay.
  std::filesystem::path moveAside();

  explicit RecoverySlot(std::filesystem::path folder)
      : folder_(std::move(folder)), lock_(folder_, base::FolderLock::IfTaken::giveUp) {}

 private:
  void removeFolder() const;

  std::filesystem::path folder_;
  base::FolderLock lock_;
};

}  // namespace trellisar
