#pragma once

#include "base/Json.h"
#include "program/Program.h"
#include "simulator/Act.h"
#include "simulator/Room.h"

namespace trial {

/// The name of a unit; null for none.
base::Json unitJson(program::Place unit, const program::Program& program);

/// Seconds, with no more decimals than it takes: 1, 1.5, 30.25.
base::Json secondsJson(simulator::Time time);

/// Adds the key that says what a person does, as scripts and traces have it.
void addAct(const simulator::Act& act, const program::Program& program, base::Json& json);

}  // namespace trial
