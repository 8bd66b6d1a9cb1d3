#pragma once

#include <cstdint>

#include "host/Device.h"
#include "host/DeviceCommands.h"

/// A selector of a device's commands that stands for a standard command, whose number is its tag:
/// the tag is the only link between the two.
namespace steps {

void SetStandardID(host::DeviceCommands& ctlSelector, std::int16_t iStandardID);

/// Offers the device's commands and selects the one that stands for the standard command, with the
/// event that loading raises.
void LoadStandardCommand(host::DeviceCommands& ctlSelector, const host::Device& oDevice);

/// Writes the selected command into the device's map and marks the document as modified where it
/// is another one. False: the map has no entry for the standard command, and nothing was written.
bool StoreStandardCommand(const host::DeviceCommands& ctlSelector, const host::Device& oDevice);

}  // namespace steps
