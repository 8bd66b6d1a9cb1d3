#pragma once

#include <string>

#include "simulator/Trial.h"
#include "trial/Script.h"

namespace trial {

/// How a trial ended.
struct Ending {
  bool isAtRest = false;
  std::string loop;  // the endless loop that ended it, in a sentence; empty: none did
};

/// Does what the script says, and lets time pass to the rest that follows, at most a day.
Ending play(const Script& script, simulator::Trial& trial);

}  // namespace trial
