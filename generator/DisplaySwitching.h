#pragma once

#include "generator/Presets.h"

namespace generator {

/// Has the display show again what is selected, of both sources. A source without a command has
/// nothing to be written, which is a success.
[[nodiscard]] bool BuildPowerOnSwitching(const PresetPtr& preset);

}  // namespace generator
