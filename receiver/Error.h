#pragma once

#include "base/Error.h"

namespace receiver {

/// What this directory raises.
using base::Error;

}  // namespace receiver
