#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "base/Fault.h"
#include "base/Json.h"

namespace base {

/// A key as it stands in a path; one without a character is seen there too.
std::string nameInPath(const std::string& key);

/// A JSON text: its value, where the parts of it stand, and all that keeps it from being JSON. A
/// comment and a comma too many are told and passed over, so that what stands behind them is read
/// too; a key that stands twice is told and counts with its last value. A number without a fraction
/// is an integer, however it is written.
struct JsonText {
  JsonText(std::string text, const JsonLimits& limits);

  Json value;  // discarded where the text can't be read
  std::vector<Fault> faults;

  /// The line of the value at a path such as "transmitters[1].label", or of the nearest one around
  /// it that is there.
  std::size_t lineOf(std::string path) const;

 private:
  std::map<std::string, std::size_t> lines_;
};

}  // namespace base
