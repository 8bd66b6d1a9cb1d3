#pragma once

#include <sys/types.h>

#include <filesystem>
#include <string>
#include <vector>

#include "bench/Cost.h"

namespace bench {

/// A program that runs beside this one. What it prints is thrown away.
class Process {
 public:
  /// Starts it; the first of `command` is its file. Raises std::runtime_error.
  explicit Process(const std::vector<std::string>& command);
  ~Process();
  Process(const Process&) = delete;
  Process& operator=(const Process&) = delete;

  /// Waits for its end and answers the processor's time that it took. Raises std::runtime_error
  /// when its exit status is not 0.
  double wait();

 private:
  std::string shown_;  // the beginning of its command
  pid_t id_ = 0;
};

/// What it costs to run programs side by side, from the start of the first to the end of the last.
Cost costOfProcesses(const std::vector<std::vector<std::string>>& commands);

/// A folder of its own, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  /// An empty folder in it, without what stood there before.
  std::filesystem::path emptied(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

}  // namespace bench
