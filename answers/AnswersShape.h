#pragma once

#include "answers/Shape.h"

namespace answers {

/// The form of an answers file: every key that there is, with what it takes.
const Shape& answersShape();

}  // namespace answers
