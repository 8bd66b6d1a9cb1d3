#pragma once

#include <string>

namespace answers {

/// Where a run tells what happens, for its user to read.
class Report {
 public:
  virtual ~Report() = default;

  /// A message of one line or of several.
  virtual void line(const std::string& text) const = 0;
};

}  // namespace answers
