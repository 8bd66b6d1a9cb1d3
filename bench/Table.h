#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "bench/Figure.h"

namespace bench {

struct SideCost {
  std::string what;
  double wall = 0;  // seconds, the median of the rounds, like the next one
  double processor = 0;
};

/// A figure that has been measured.
struct Row {
  std::string name;
  Aim aim;
  double ratio = 0;
  double processorRatio = 0;  // the same ratio of the processor's time
  std::vector<SideCost> sides;
};

/// Prints each figure when it has been measured: its ratio, its aim and, below, what its sides
/// cost.
class Table : public benchmark::BenchmarkReporter {
 public:
  /// What the benchmark that runs has found. The next report shows it.
  static void enter(const Row& row);

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  bool hasFailures() const { return hasFailures_; }

 private:
  bool hasFailures_ = false;
};

}  // namespace bench
