#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Fault.h"
#include "program/Program.h"
#include "simulator/Trial.h"

/// A trial at the command line: what a person does in the room is read from a file, and what
/// happens is written. Their forms are in docs/trial.md.
namespace trial {

/// Times of the world in the place of those that the program gives a unit, in seconds.
struct OwnTiming {
  program::Place unit = program::none;
  std::optional<std::int32_t> warmUp;
  std::optional<std::int32_t> coolDown;
  std::optional<std::int32_t> travel;

  bool operator==(const OwnTiming&) const = default;
};

/// What is done in a room, and how long its devices take.
struct Script {
  std::vector<simulator::Trial::Done> acts;  // by time
  std::vector<OwnTiming> timing;

  bool operator==(const Script&) const = default;
};

struct ReadScript {
  Script script;
  /// All that is wrong, from the first line to the last; empty: the script can be played.
  std::vector<base::Fault> faults;
};

/// How long the text of a script may be.
inline constexpr std::size_t mostBytesOfScript = 8U << 20U;

/// Reads a script for the room of a program: every unit, button, page, object and signal that it
/// names is there.
ReadScript readScript(std::string text, const program::Program& program);

/// The text from which `readScript` reads the same script.
std::string scriptText(const Script& script, const program::Program& program);

/// Gives the program's units the script's own times.
void setTimes(const Script& script, program::Program& program);

}  // namespace trial
