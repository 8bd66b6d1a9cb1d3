#pragma once

#include "trellisar/compare/Difference.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// In what `after` differs from `before`: devices, touch panels, bill of materials and program,
/// matched by their names. A document that holds nothing is compared as one.
///
/// The name and the folder of a system, and whether its program and its panels were built, are no
/// differences: they say where a room lies and how far it is, and not what it is.
Differences compare(const DocumentData& before, const DocumentData& after);

}  // namespace trellisar
