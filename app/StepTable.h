#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/Acts.h"

namespace app {

class Answers;

/// The acts of the steps that ask for something, in the order of the steps.
const std::vector<StepActs>& stepActs();

StepActs locationActs();
StepActs displayActs();
StepActs powerActs();

/// Raises RunEnded with status 2 when there is an answer for a step that has no acts yet.
void refuseAnswersWithoutStep(const Answers& answers);

}  // namespace app
