#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "receiver/Address.h"
#include "receiver/Messages.h"
#include "receiver/Outcome.h"

namespace receiver {

/// What is sent to a receiver.
struct Program {
  std::string name;
  std::string bytes;
  Properties properties;
};

/// The sending of a program, which goes on only while its owner calls `poll`. It tells all that it
/// has to tell from there, and does not wait unless it is asked to.
///
///     Transfer transfer(address, program, {.ended = [](const Outcome& outcome) { ... }});
///     while (transfer.poll(50ms)) {}
///
/// A receiver that has not got the whole program keeps the one that it holds.
class Transfer {
 public:
  struct Handlers {
    /// Bytes that the receiver has taken, and those of the whole program.
    std::function<void(std::uint64_t sent, std::uint64_t total)> progress = {};
    /// Exactly once, as the last call. The transfer may be destroyed from within either of them.
    std::function<void(const Outcome& outcome)> ended = {};
  };

  /// Begins. Raises Error for a program that no receiver takes: an empty one, one above a limit, or
  /// one with a wrong name or property.
  Transfer(const Address& address, Program program, Handlers handlers, TimeLimits limits = {});
  /// Breaks off; `ended` is not called any more.
  ~Transfer();
  Transfer(const Transfer&) = delete;
  Transfer& operator=(const Transfer&) = delete;

  /// Does what can be done now, up to the next progress, or waits at most so long for something
  /// that can be. False once `ended` was called. A call from within a handler does nothing.
  bool poll(std::chrono::milliseconds wait = std::chrono::milliseconds(0));

  /// Breaks off; `poll` then calls `ended`. Too late, and without effect, when the last frame
  /// has left: the end is then the receiver's.
  void cancel();

 private:
  struct Impl;
  std::shared_ptr<Impl> impl_;
};

}  // namespace receiver
