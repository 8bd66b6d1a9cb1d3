#pragma once

#include <string>

#include "trellisar/compare/Difference.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// A preset, or one of its branches, and the document in which it stands.
struct PresetIn {
  const DocumentData& document;
  const PresetData& preset;
};

/// What a difference in a preset says about its place.
struct PresetPlace {
  Difference::Part part;
  std::string name;
};

/// All steps of a preset, also those of its branches.
Pieces stepsOf(const PresetData& preset);

/// Appends in what the steps differ, those of branches with the conditions that they stand in. A
/// step that is gone from one place and new at another one has moved.
void comparePresets(const PresetIn& before, const PresetIn& after, const PresetPlace& place,
                    Differences& differences);

}  // namespace trellisar
