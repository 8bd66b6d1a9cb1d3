#pragma once

#include "answers/Acts.h"

namespace answers {

/// All are handed all transmitters: those that are there are deleted from the last, then all are
/// added, and then renamed from the first.
Act deleteTransmitters();
Act addTransmitters();
Act renameTransmitters();

}  // namespace answers
