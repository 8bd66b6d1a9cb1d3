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
};

struct SearchResult {
  /// By truth, then by how it shows; each fault once.
  std::vector<Finding> findings;
  std::size_t states = 0;  // in which acts were tried
};

/// Looks for faults in every order of a person's acts, `depth` of them at most, each at every
/// instant that matters: at rest, and right before, at and after all that is due. The program
/// outlives the call.
SearchResult search(const program::Program& program, int depth);

/// What a person can do in a room that may make a difference: each act once.
std::vector<Act> actsOf(const runtime::Wiring& wiring);

}  // namespace simulator
