#pragma once

#include <stdexcept>
#include <string>

namespace app {

/// Ends the run of a room before its save: the exit status, and what happened, for the user.
class RunEnded : public std::runtime_error {
 public:
  RunEnded(int status, const std::string& what) : std::runtime_error(what), status_(status) {}

  int status() const { return status_; }

 private:
  int status_;
};

}  // namespace app
