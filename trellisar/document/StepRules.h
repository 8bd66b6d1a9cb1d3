#pragma once

#include <cstdint>

#include "trellisar/document/DocumentData.h"

/// What every step of a program keeps to.
namespace trellisar {

/// How many conditional steps may stand one inside the other.
inline constexpr int maximumBranchDepth = 20;

/// Whether a step can have the target: the device, panel or named preset is in the document.
bool isTargetThere(const DocumentData& document, std::int16_t targetType, std::int32_t target);

/// Whether the kind goes with the target type: a call with a preset, a conditional step with none.
bool isStepForm(std::int16_t kind, std::int16_t targetType);

}  // namespace trellisar
