#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "simulator/Trial.h"
#include "simulator/Truths.h"

namespace simulator {

/// A fault of a room with the shortest way to it.
struct Finding {
  Fault fault;
  std::vector<Trial::Done> script;
  bool isEveryday = false;  // everyday acts lead to it
};

struct SearchResult {
  /// Those of everyday acts first, each by truth, then by how it shows; each fault once.
  std::vector<Finding> findings;
  std::size_t states = 0;  // in which acts were tried
};

/// Looks for faults in every order of a person's acts, `depth` of them at most, each at every
/// instant that matters: at rest, and right before, at and after all that is due. A fault that
/// everyday acts lead to is shown with these, also where others lead to it sooner. The program
/// outlives the call.
SearchResult search(const program::Program& program, int depth);

/// What a person can do in a room that may make a difference: each act once.
std::vector<Act> actsOf(const runtime::Wiring& wiring);

/// Whether it is what visitors of a room do: not the help desk's commands, nor a panel's buttons
/// that command a single device or lock the room.
bool isEveryday(const Act& act, const program::Program& program);

}  // namespace simulator
