#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace answers {

/// How a room ended: its exit status, and the path of its saved system, which is empty when there
/// is none.
struct RoomResult {
  int status = 0;
  std::string systemFile;
};

/// Rooms in their order, some of them built at the same time.
class Batch {
 public:
  using Job = std::function<RoomResult()>;

  /// `saved` is called with the path of each saved system once all rooms before it have ended, on
  /// any thread, one call at a time.
  explicit Batch(std::function<void(const std::string&)> saved) : saved_(std::move(saved)) {}

  /// Runs the jobs, `parallel` of them at a time, and answers their highest status.
  int run(const std::vector<Job>& jobs, int parallel);

 private:
  void startHelpers(std::vector<std::jthread>& helpers, int wanted, const std::vector<Job>& jobs);
  void work(const std::vector<Job>& jobs);
  void ended(std::size_t job, RoomResult result);

  std::function<void(const std::string&)> saved_;
  std::mutex mutex_;
  std::size_t next_ = 0;
  std::size_t printed_ = 0;
  std::vector<bool> hasEnded_;
  std::vector<RoomResult> results_;
};

}  // namespace answers
