#pragma once

#include "generator/Run.h"

namespace generator {

/// Writes "Display Power On" and "Display Power Off" as the display's power control asks for, and
/// has the two system presets call them first.
[[nodiscard]] bool BuildDisplayPowerPresets(Run& run);

}  // namespace generator
