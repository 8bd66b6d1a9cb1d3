#pragma once

#include <functional>
#include <string>
#include <vector>

#include "bench/Cost.h"

namespace bench {

/// One of the things that a figure compares. `run` does it once and answers what that cost; what it
/// prepares and clears away is not part of the cost.
struct Side {
  std::string what;
  std::function<Cost()> run;
  double share = 1;  // what it costs is divided by this, such as a number of rooms
};

/// What a figure may be.
struct Aim {
  enum class Bound { atMost, atLeast };

  Bound bound = Bound::atMost;
  double value = 0;

  bool isMetBy(double ratio) const {
    return bound == Bound::atMost ? ratio <= value : ratio >= value;
  }
};

/// A ratio of two things that are measured in turns. With Aim::Bound::atMost it is the cost of the
/// first side by that of the second; with atLeast it is the gain, the other way round. Sides after
/// the second are measured in the same turns and only shown.
struct Figure {
  std::string name;
  Aim aim;
  int rounds = 1;  // how often each side runs
  /// Makes the sides when the figure is asked for; what they hold lives until it has been measured.
  std::function<std::vector<Side>()> sides;
};

void registerFigures(const std::vector<Figure>& figures);

/// Runs the registered figures and prints them as a table. Answers false when one of them could not
/// be measured; a missed aim is not a failure.
bool runFigures();

// The figures, each group in a file of its own.
std::vector<Figure> generatorFigures();
std::vector<Figure> fileFigures();
std::vector<Figure> processFigures();
std::vector<Figure> windowFigures();

}  // namespace bench
