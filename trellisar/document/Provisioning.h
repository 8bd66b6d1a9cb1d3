#pragma once

#include <string>
#include <vector>

#include "trellisar/document/DocumentData.h"

/// Putting devices, modules and panels into a document and taking them out.
namespace trellisar {

/// Adds a device, or a panel for the definition of a user interface, with handle, port and the
/// definition's properties, and marks the document. A device for which the receiver has no port
/// left is added without one. Nothing, with a text in `error`: the name is taken below the parent,
/// or the ids are used up.
DevicePtr addDevice(DocumentData& document, const DefinitionPtr& definition,
                    const std::string& name, std::int16_t parent, std::string& error);

/// Adds a module below a device, with the texts that `draft` carries, and marks the document.
/// Nothing when the ids are used up.
DevicePtr addModule(DocumentData& document, const DevicePtr& device, const DeviceData& draft);

/// Takes a device or panel out, with its modules and every step, source and slot that names one of
/// them. A conditional step that tests one gives way to the steps of its branch. Marks the
/// document.
void removeDevice(DocumentData& document, const DevicePtr& device);

/// Gives the device the properties and slots of a definition; values that the definition takes
/// stay.
void takeDefinition(DeviceData& device, const DefinitionPtr& definition);

/// Makes the receiver one of another model. Devices at ports that it does not have, and those that
/// had none, are given others as far as there are some.
void changeReceiver(DocumentData& document, const DefinitionPtr& definition);

/// A sentence for each device that needs a port and has none that the receiver has.
std::vector<std::string> devicesWithoutPort(const DocumentData& document);

/// Takes the events and sources of the signals that the device's definition does not have out of
/// the document: nothing can ever raise or feed them.
void dropLostSignals(DocumentData& document, DeviceData& device);

/// Whether a device could be at a port: the port is its own, or free and one of the receiver.
bool canTakePort(const DocumentData& document, const DeviceData& device, std::int16_t port);

/// The text that the host shows of a device of this kind, which begins with the name of the kind.
std::string describe(const Definition& definition);

/// "Relay 1", "IP-ID 03", "Serial Port 1", of several the first; empty for a device without a port.
std::string portText(const DeviceData& device);
/// All of them, in their order.
std::vector<std::string> portTexts(const DeviceData& device);
/// "03"; empty for a device that is not on the network.
std::string ipId(const DeviceData& device);

}  // namespace trellisar
