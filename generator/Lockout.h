#pragma once

#include "generator/Devices.h"
#include "generator/Run.h"

namespace generator {

/// Whether the display is to have the lockout module.
bool NeedsLockout(const host::Device& display);

/// The lockout module, which the display gets where it has none; nothing, and a failure with a
/// text, where the library has none to give. Replaces `display` by the device as it is with the
/// module.
DevicePtr GetPowerLockoutModule(Run& run, DevicePtr& display);

}  // namespace generator
