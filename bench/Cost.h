#pragma once

#include <chrono>
#include <ctime>

namespace bench {

/// What something took, in seconds.
struct Cost {
  double wall = 0;
  double processor = 0;  // in the program and in the system
};

inline double processorSeconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

/// The cost of a call on this thread, while no other one runs.
template <typename Work>
Cost costOf(Work&& work) {
  using Clock = std::chrono::steady_clock;
  const double processor = processorSeconds();
  const auto start = Clock::now();
  work();
  const std::chrono::duration<double> wall = Clock::now() - start;
  return {wall.count(), processorSeconds() - processor};
}

}  // namespace bench
