#include "bench/Figure.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <exception>

#include "bench/Table.h"

namespace bench {
namespace {

double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// The costs of one side, a round each.
struct Series {
  std::vector<double> wall;
  std::vector<double> processor;

  void add(const Cost& cost, double share) {
    wall.push_back(cost.wall / share);
    processor.push_back(cost.processor / share);
  }
};

/// The median of the rounds' ratios: what disturbs the machine for a while disturbs both sides of a
/// round.
double ratioOf(const std::vector<double>& first, const std::vector<double>& second,
               Aim::Bound bound) {
  std::vector<double> ratios;
  for (std::size_t i = 0; i < first.size(); ++i) {
    ratios.push_back(bound == Aim::Bound::atMost ? first[i] / second[i] : second[i] / first[i]);
  }
  return median(std::move(ratios));
}

/// Every side once, in turning order, so that none always runs after the same other one.
void runRound(const std::vector<Side>& sides, std::size_t round, std::vector<Series>& series) {
  for (std::size_t i = 0; i < sides.size(); ++i) {
    const std::size_t turn = (i + round) % sides.size();
    series[turn].add(sides[turn].run(), sides[turn].share);
  }
}

Row rowOf(const Figure& figure, const std::vector<Side>& sides, const std::vector<Series>& series) {
  Row row{.name = figure.name, .aim = figure.aim, .sides = {}};
  row.ratio = ratioOf(series[0].wall, series[1].wall, figure.aim.bound);
  row.processorRatio = ratioOf(series[0].processor, series[1].processor, figure.aim.bound);
  for (std::size_t i = 0; i < sides.size(); ++i) {
    row.sides.push_back({sides[i].what, median(series[i].wall), median(series[i].processor)});
  }
  return row;
}

void measure(const Figure& figure, benchmark::State& state) {
  try {
    const std::vector<Side> sides = figure.sides();
    for (const Side& side : sides) side.run();
    std::vector<Series> series(sides.size());
    std::size_t round = 0;
    for (auto _ : state) {
      runRound(sides, round++, series);
      state.SetIterationTime(series[0].wall.back());
    }
    const Row row = rowOf(figure, sides, series);
    state.counters["ratio"] = row.ratio;
    state.counters["processor_ratio"] = row.processorRatio;
    state.counters["aim"] = row.aim.value;
    Table::enter(row);
  } catch (const std::exception& error) {
    state.SkipWithError(error.what());
  }
}

}  // namespace

void registerFigures(const std::vector<Figure>& figures) {
  for (const Figure& figure : figures) {
    benchmark::RegisterBenchmark(figure.name.c_str(),
                                 [figure](benchmark::State& state) { measure(figure, state); })
        ->Iterations(figure.rounds)
        ->UseManualTime();
  }
}

bool runFigures() {
  Table table;
  benchmark::RunSpecifiedBenchmarks(&table);
  return !table.hasFailures();
}

}  // namespace bench
