#include "trellisar/compare/Compare.h"

#include "trellisar/compare/DeviceComparison.h"
#include "trellisar/compare/ProgramComparison.h"
#include "trellisar/compile/Words.h"

namespace trellisar {
namespace {

/// The word of the application decides who can go on with a system.
void compareApplications(const DocumentData& before, const DocumentData& after,
                         Differences& differences) {
  const bool areSystems = before.controlSystem != 0 && after.controlSystem != 0;
  if (!areSystems || before.application == after.application) return;
  differences.push_back({Difference::Part::system, Difference::Change::changed, "System",
                         "saved by", words::inQuotes(before.application),
                         words::inQuotes(after.application)});
}

}  // namespace

Differences compare(const DocumentData& before, const DocumentData& after) {
  Differences differences;
  compareApplications(before, after, differences);
  compareDevices(before, after, differences);
  comparePanels(before, after, differences);
  compareBills(before, after, differences);
  compareProgram(before, after, differences);
  return differences;
}

}  // namespace trellisar
