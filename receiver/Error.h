#pragma once

#include <stdexcept>

namespace receiver {

/// What this directory raises. The text is a sentence for a user: what happened, to what, and where
/// it helps what to do.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace receiver
