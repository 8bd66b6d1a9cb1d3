#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "program/Program.h"

namespace runtime {

/// Hundredths of a second since the program started.
using Time = std::int64_t;

/// Lines are numbered from 1.
using LineNumber = std::uint64_t;
inline constexpr LineNumber noLine = 0;

/// One thing that happened. Its texts belong to the program or live for ever.
struct Line {
  enum class Kind {
    input,     // a person acted
    level,     // a digital output changed: unit, name, isOn
    run,       // steps begin: of the preset, or of the event unit, name, isOn
    waiting,   // a run stands in line for the preset
    joined,    // a run joined the one that waits for the preset
    sent,      // a command: unit, name, type, text its value
    released,  // the same, at the end of its hold time
    refused,   // a press was not taken: unit, name, text why
    lost,      // a command had no effect: unit, name, text why
    cut,       // a device lost its mains while it needed them: the same
    state,     // of a device: unit, name
  };

  Kind kind = Kind::input;
  LineNumber because = noLine;  // the line that led to it
  program::Place unit = program::none;
  program::Place preset = program::none;
  std::string_view name = {};
  std::string_view text = {};
  program::Command::Type type = program::Command::Type::digital;
  bool isOn = false;
  LineNumber number = noLine;  // given by the machine, like the time
  Time at = 0;
};

using Trace = std::vector<Line>;

}  // namespace runtime
