#pragma once

#include "trellisar/compare/Difference.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// Append in what the devices with their modules, the touch panels and the bill of materials
/// differ.
void compareDevices(const DocumentData& before, const DocumentData& after,
                    Differences& differences);
void comparePanels(const DocumentData& before, const DocumentData& after, Differences& differences);
void compareBills(const DocumentData& before, const DocumentData& after, Differences& differences);

}  // namespace trellisar
