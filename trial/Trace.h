#pragma once

#include <string>

#include "base/Json.h"
#include "simulator/Trial.h"

namespace trial {

/// What happened in a trial so far, and how the room stands: `{"system", "trace", "rest",
/// "at_rest"}`.
base::Json traceJson(const simulator::Trial& trial, bool isAtRest);

/// The same for reading: a line for each thing that happened, with its number, its time and the
/// number of the line that led to it.
///
///        n       at  from  what happens
///        3     1.00        press Power_On of Receiver
///        4     1.00     3  Powered_Off of Receiver goes off
std::string traceText(const simulator::Trial& trial, bool isAtRest);

}  // namespace trial
