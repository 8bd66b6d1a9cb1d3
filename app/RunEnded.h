#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "app/Fault.h"

namespace app {

/// Ends the run of a room before its save: the exit status, and what happened, for the user.
class RunEnded : public std::runtime_error {
 public:
  RunEnded(int status, std::vector<Fault> faults)
      : std::runtime_error(faults.front().text()), status_(status), faults_(std::move(faults)) {}
  RunEnded(int status, const std::string& what) : RunEnded(status, {Fault{.what = what}}) {}

  int status() const { return status_; }
  /// At least one.
  const std::vector<Fault>& faults() const { return faults_; }

 private:
  int status_;
  std::vector<Fault> faults_;
};

}  // namespace app
