#pragma once

#include <string>
#include <vector>

#include "base/Json.h"
#include "simulator/Search.h"

/// What a search for faults found, for people and for other programs.
namespace trial {

/// The paths of the answers that mend a fault, such as "lockout.on"; empty: none does.
std::vector<std::string> answersThatMend(const simulator::Fault& fault);

/// `{"what", "against", "answers", "everyday", "script", "trace"}`: the fault, the truth that does
/// not hold, the answers that mend it, and the shortest way to it as a script and as the trace of
/// it.
base::Json findingJson(const simulator::Finding& finding, const program::Program& program);

/// The same for reading, in a few lines that are indented: what is wrong, what mends it, what is
/// done and what the room does.
std::string findingText(const simulator::Finding& finding, const program::Program& program);

/// In one line: `Display Device does not take Off: it warms up (mended by lockout.on)`.
std::string findingLine(const simulator::Fault& fault);

}  // namespace trial
