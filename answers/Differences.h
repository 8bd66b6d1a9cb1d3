#pragma once

#include "base/Json.h"
#include "trellisar/compare/Difference.h"

namespace answers {

/// In what the answers of two systems differ, as they stand in answers files, in the order of the
/// table and in its words. The name and the folder say where a system lies, and are no differences.
trellisar::Differences differences(const base::Json& before, const base::Json& after);

}  // namespace answers
