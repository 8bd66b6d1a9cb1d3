#pragma once

#include <string>
#include <vector>

#include "base/Json.h"
#include "trellisar/compile/Piece.h"

namespace trellisar {

/// One thing in which a room differs from what it was.
struct Difference {
  enum class Part { answers, system, devices, panels, bill, presets, events, sources };
  enum class Change { isNew, gone, changed, moved };

  Part part;
  Change change;
  /// What it belongs to: "Display Device", "System Power Off", "when Powered_On of Receiver goes
  /// on".
  std::string place;
  /// The property, step or other piece of the place; empty: the place itself. Of an answer, whose
  /// place is its key, what it means.
  std::string what = {};
  /// What it is in each of the two; of something that moved, where it stands there. Empty where it
  /// is not there, or where `what` says it all.
  std::string before = {};
  std::string after = {};
  /// Of a step: the conditions that it stands in, the outermost first.
  std::vector<std::string> within = {};
  /// Of a step that is new or gone: the one before it; empty: it is the first.
  std::string behind = {};
  /// The pieces of the room as it was that have no like now, or are not what they were.
  Pieces pieces = {};
};

using Differences = std::vector<Difference>;

/// `Screen: Relay 2, Relay 3 became Relay 4, Relay 5`
std::string inWords(const Difference& difference);

/// A line for each, below a heading for each part; empty without any.
std::string readableText(const Differences& differences);

/// In the form of docs/differences.md.
base::Json toJson(const Differences& differences);

}  // namespace trellisar
