#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "base/Json.h"
#include "trellisar/compile/Piece.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// Why a piece of a document is there.
struct Reason {
  /// The paths of the answers that it is there for.
  std::vector<std::string> answers = {};
  /// Those of them without which none of the others has to go too: of "display.device",
  /// "display.relay" and "display.relay.on_delay" the last.
  std::vector<std::string> nearest = {};
  /// Nothing builds it: an earlier answer, or a hand, has left it behind.
  bool isLeftOver = false;
};

/// Every room has a piece that is not in it.
using Reasons = std::unordered_map<Piece, Reason>;

/// The listing, each of whose pieces also has a key "answers", and one that is left over a key
/// "left_over".
base::Json explainedListing(const DocumentData& document, const Reasons& reasons);

/// The same for reading, with the nearest answers behind each line in a second column, which goes
/// on below where it is too narrow for them.
std::string explainedText(const DocumentData& document, const Reasons& reasons);

}  // namespace trellisar
