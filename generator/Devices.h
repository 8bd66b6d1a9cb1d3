#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "addin/Cast.h"
#include "generator/Run.h"
#include "host/Device.h"
#include "host/DeviceList.h"

/// What a sub-builder asks of the devices of the open document: the commands of their drivers,
/// their properties and their modules.
namespace generator {

using addin::IsInSystem;

using DevicePtr = std::shared_ptr<host::Device>;

/// Nothing in a room without a display.
DevicePtr FindDisplay();

// Commands by the standard id of the driver; empty when there is no such device or command.
std::string GetDeviceCommandName(std::int16_t iDeviceID, std::int16_t iStandardCommand);
std::string GetSourceCommandName(std::int16_t iStandardCommand);
std::string GetAuxiliaryCommandName(std::int16_t iDeviceID, std::int16_t ePowerOnOrOff);

/// A property that is not there, or that refuses the value, is a failure with a text.
[[nodiscard]] bool SetProperty(Run& run, const host::Device& device, const std::string& sProperty,
                               const std::string& sValue);

/// The device's module of this short name, whose case does not count; nothing when absent.
DevicePtr FindModule(const host::Device& device, const std::string& sShortName);

/// The module as the library has it, made for the device, ready for AddModules; an empty list when
/// the library has none.
host::ModuleList ModulesFromLibrary(const std::string& sShortName, std::int16_t iDeviceID);

}  // namespace generator
