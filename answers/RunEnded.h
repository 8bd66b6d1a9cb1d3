#pragma once

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "base/Fault.h"

namespace answers {

/// Ends the run of a room: why, and what happened, for the user.
class RunEnded : public std::runtime_error {
 public:
  enum Cause {
    refused,     // by the wizard, the generator, the save or what comes after it
    wrongInput,  // the answers are none that this room can be given
  };

  RunEnded(Cause cause, std::vector<base::Fault> faults)
      : std::runtime_error(faults.front().text()), cause_(cause), faults_(std::move(faults)) {}
  RunEnded(Cause cause, const std::string& what) : RunEnded(cause, {base::Fault{.what = what}}) {}

  Cause cause() const { return cause_; }
  /// At least one.
  const std::vector<base::Fault>& faults() const { return faults_; }

 private:
  Cause cause_;
  std::vector<base::Fault> faults_;
};

}  // namespace answers
