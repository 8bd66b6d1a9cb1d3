#pragma once

#include <cstdint>

#include "generator/Devices.h"
#include "generator/Run.h"

/// What a display whose power is sensed needs beside its steps.
namespace generator {

/// The id of the module, none on failure; the library is asked only for one that the device does
/// not have yet. Replaces `device` by the device as it is with the module.
[[nodiscard]] std::int16_t AddPowerSensingModule(Run& run, DevicePtr& device);

// The part in the receiver's entry of the bill of materials; without an entry no part is listed.
void AddPowerSensorPart();
void RemovePowerSensorPart();

}  // namespace generator
