#pragma once

#include <condition_variable>
#include <filesystem>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace trellisar {

/// Writes files on a thread of its own, so that nobody waits for the disk. What has not been begun
/// when something newer comes is passed over.
class BackgroundWriter {
 public:
  BackgroundWriter() = default;
  /// Waits, as `wait`.
  ~BackgroundWriter();
  BackgroundWriter(const BackgroundWriter&) = delete;
  BackgroundWriter& operator=(const BackgroundWriter&) = delete;

  /// As base::replaceFile.
  void write(std::filesystem::path file, std::string content);
  /// Returns when nothing is being written any more.
  void wait();
  /// Whether something waits to be written, is being written, or has failed and nobody knows yet.
  bool isBusy();
  /// What kept the last write from its end; empty: nothing. It is told once.
  std::string takeFailure();

 private:
  struct Task {
    std::filesystem::path file;
    std::string content;
  };
  void work();

  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<Task> next_;
  std::string failure_;
  bool isWriting_ = false;
  bool isEnding_ = false;
  std::thread thread_;  // started by the first write
};

}  // namespace trellisar
