#include "answers/StepTable.h"

namespace answers {

const std::vector<StepActs>& stepActs() {
  static const std::vector<StepActs> steps = {
      locationActs(), displayActs(),        audioActs(),       powerActs(),
      lockoutActs(),  displayOptionsActs(), transmitterActs(), roomActs()};
  return steps;
}

}  // namespace answers
