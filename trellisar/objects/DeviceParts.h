#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/Device.h"
#include "trellisar/document/DocumentData.h"

/// What hangs on a device: its properties, commands and slots.
namespace trellisar {

/// Nothing when the device has no such property.
std::shared_ptr<host::DeviceProperty> makeProperty(const DocumentPtr& document,
                                                   const DevicePtr& device,
                                                   const std::string& name);

std::shared_ptr<host::PropertyList> makePropertyList(const DocumentPtr& document,
                                                     const DevicePtr& device);

/// The digital inputs of a definition, which are its commands.
std::shared_ptr<host::CommandList> makeCommandList(const DefinitionPtr& definition);
/// One without a command.
std::shared_ptr<host::CommandList> makeEmptyCommandList();
std::shared_ptr<host::DeviceCommand> makeCommand(const CommandDefinition& command);

std::shared_ptr<host::ModuleCommandSlot> makeSlot(const DocumentPtr& document,
                                                  const std::shared_ptr<SlotData>& slot);

}  // namespace trellisar
