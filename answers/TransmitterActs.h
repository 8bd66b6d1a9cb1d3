#pragma once

#include "answers/Acts.h"

namespace answers {

/// Both are handed all transmitters: they are all added first, and then renamed from the first.
Act addTransmitters();
Act renameTransmitters();

}  // namespace answers
