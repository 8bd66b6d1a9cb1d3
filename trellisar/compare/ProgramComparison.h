#pragma once

#include <string>

#include "trellisar/compare/Difference.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// Appends in what the presets, the events and the directly fed signals differ.
void compareProgram(const DocumentData& before, const DocumentData& after,
                    Differences& differences);

}  // namespace trellisar
