#pragma once

#include <cstddef>
#include <string>

namespace base {

/// What is wrong with a file that a person wrote, or with one of its values.
struct Fault {
  std::string what;
  std::string path = {};  // of the key, such as "transmitters[1].label"; empty: of the whole
  std::size_t line = 0;   // in the file; 0: not known

  /// `lockout.contact: "opened" is none of "unused", "power off", "continue"`
  std::string text() const { return path.empty() ? what : path + ": " + what; }
};

}  // namespace base
