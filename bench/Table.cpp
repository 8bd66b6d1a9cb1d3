#include "bench/Table.h"

#include <cstdio>
#include <utility>

namespace bench {
namespace {

std::vector<Row>& entered() {
  static std::vector<Row> rows;
  return rows;
}

std::string shownTime(double seconds) {
  struct Unit {
    double seconds;
    const char* name;
  };
  constexpr Unit units[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}};
  const Unit* unit = &units[0];
  while (unit != &units[2] && seconds < unit->seconds) ++unit;
  char text[32];
  std::snprintf(text, sizeof text, "%.2f %s", seconds / unit->seconds, unit->name);
  return text;
}

void print(const Row& row) {
  const char* bound = row.aim.bound == Aim::Bound::atMost ? "at most" : "at least";
  std::printf("%-28s %7.3f %10.3f   %-8s %5.2f   %s\n", row.name.c_str(), row.ratio,
              row.processorRatio, bound, row.aim.value,
              row.aim.isMetBy(row.ratio) ? "reached" : "MISSED");
  for (const SideCost& side : row.sides) {
    std::printf("    %-50s %12s %12s\n", side.what.c_str(), shownTime(side.wall).c_str(),
                shownTime(side.processor).c_str());
  }
}

}  // namespace

void Table::enter(const Row& row) { entered().push_back(row); }

bool Table::ReportContext(const Context&) {
  std::printf("%-28s %7s %10s   %-14s   %s\n", "figure", "ratio", "processor", "aim", "");
  std::printf("    %-50s %12s %12s\n", "what was measured, in turns", "time", "processor");
  return true;
}

void Table::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (!run.error_occurred) continue;
    hasFailures_ = true;
    std::printf("%-28s FAILED: %s\n", run.run_name.function_name.c_str(),
                run.error_message.c_str());
  }
  for (const Row& row : std::exchange(entered(), {})) print(row);
  std::fflush(stdout);
}

}  // namespace bench
