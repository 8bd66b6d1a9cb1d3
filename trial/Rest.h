#pragma once

#include "base/Json.h"
#include "simulator/Trial.h"

namespace trial {

/// How the units of a room stand now: an object from a unit's name to what there is to tell of it,
/// `{"levels", "state", "locked", "enabled", "closed", "input"}`, those that it has.
base::Json restJson(const simulator::Trial& trial);

}  // namespace trial
