#pragma once

#include <chrono>
#include <string>

namespace receiver {

/// How something that was asked of a receiver ended.
struct Outcome {
  enum class Kind { done, failed, cancelled };

  Kind kind = Kind::done;
  /// For a user, with the receiver's address: what happened and what to do. Empty when it was done.
  std::string message;

  explicit operator bool() const { return kind == Kind::done; }
};

/// How long a receiver is waited for.
struct TimeLimits {
  std::chrono::milliseconds connect{5000};  // the look-up of a name included
  std::chrono::milliseconds answer{10000};  // to each message
};

}  // namespace receiver
