#pragma once

#include <vector>

#include "answers/Acts.h"

namespace answers {

/// The acts of the steps that ask for something, in the order of the steps.
const std::vector<StepActs>& stepActs();

StepActs locationActs();
StepActs displayActs();
StepActs audioActs();
StepActs powerActs();
StepActs lockoutActs();
StepActs displayOptionsActs();
StepActs transmitterActs();
StepActs roomActs();

}  // namespace answers
