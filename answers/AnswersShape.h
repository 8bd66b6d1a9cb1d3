#pragma once

#include "answers/Shape.h"

namespace app {

/// The form of an answers file: every key that there is, with what it takes.
const Shape& answersShape();

}  // namespace app
