#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/Device.h"
#include "host/DeviceList.h"

/// The modules that a sub-builder hangs below a device, by the short name of the library.
namespace generator {

/// The device's module of this short name, whose case does not count; nothing when absent.
std::shared_ptr<host::Device> FindModule(const host::Device& device, const std::string& sShortName);

/// The module as the library has it, made for the device, ready for AddModules; an empty list when
/// the library has none.
host::ModuleList ModulesFromLibrary(const std::string& sShortName, std::int16_t iDeviceID);

}  // namespace generator
