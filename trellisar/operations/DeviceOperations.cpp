#include <algorithm>

#include "host/Error.h"
#include "host/Numbers.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/objects/DeviceLists.h"
#include "trellisar/operations/MainWindowOperations.h"

namespace trellisar {
namespace {

using Kind = DeviceData::Kind;

/// The library's device for the arguments; nothing, with the reason in `error`.
DefinitionPtr findDefinition(const DeviceLibrary& library,
                             const host::AddDeviceArguments& arguments, std::string& error) {
  const DefinitionPtr definition = library.findEntry(arguments.iControlEntryID);
  const std::string which = "\"" + arguments.strName + "\" can't be added: ";
  if (!definition) {
    error = which + "the device library has no control entry " +
            std::to_string(arguments.iControlEntryID) + ".";
    return nullptr;
  }
  const bool isAnyModel = arguments.iModelID == host::modelFromControlEntry;
  if (!isAnyModel && definition->modelId != arguments.iModelID) {
    error = which + "the device library knows it as model " + std::to_string(definition->modelId) +
            " and not " + std::to_string(arguments.iModelID) + ".";
    return nullptr;
  }
  if (definition->slot == arguments.iSlot) return definition;
  error = which + "it does not fit into slot " + std::to_string(arguments.iSlot) + ".";
  return nullptr;
}

/// The devices of the document by name alone, since a parent is named so.
DevicePtr findParent(const DocumentData& document, const std::string& name) {
  const auto found =
      std::find_if(document.devices.begin(), document.devices.end(),
                   [&name](const DevicePtr& device) { return device->name == name; });
  return found == document.devices.end() ? nullptr : *found;
}

/// Adds what the arguments name; the reason of a failure is in `strError`.
DevicePtr addFromLibrary(DocumentData& document, host::AddDeviceArguments& arguments) {
  const DevicePtr parent = findParent(document, arguments.strParentName);
  if (!parent) {
    arguments.strError = "\"" + arguments.strName + "\" can't be added: there is no device \"" +
                         arguments.strParentName + "\".";
    return nullptr;
  }
  const DefinitionPtr definition = findDefinition(*document.library, arguments, arguments.strError);
  if (!definition) return nullptr;
  return addDevice(document, definition, arguments.strName, parent->id, arguments.strError);
}

}  // namespace

bool MainWindowOperations::AddDevice(host::AddDeviceArguments& arguments) {
  note("AddDevice " + arguments.strName);
  arguments.strError.clear();
  try {
    const DevicePtr device = addFromLibrary(*session_->data(), arguments);
    if (!device) return false;
    if (!arguments.strMaker.empty()) device->maker = arguments.strMaker;
    arguments.iDeviceID = device->id;
    return true;
  } catch (const host::Error& error) {
    arguments.strError = error.description();
    return false;
  }
}

std::int16_t MainWindowOperations::chooseDevice(host::DeviceDialogArguments& arguments,
                                                const DefinitionPtr& chosen) {
  DocumentData& document = *session_->data();
  DevicePtr old = document.find(arguments.iDeviceID, Kind::device);
  if (!old) {
    const DevicePtr parent = document.find(arguments.iParentID, Kind::device);
    old = document.findByName(Kind::device, arguments.strName, parent ? parent->name : "");
  }
  if (old && *old->definition == *chosen) {
    return arguments.iDeviceID == 0 ? old->id : std::int16_t{host::deviceDialogUnchanged};
  }
  if (old) removeDevice(document, old);
  std::string error;
  const DevicePtr device =
      addDevice(document, chosen, arguments.strName, arguments.iParentID, error);
  if (device) return device->id;
  showFailure(error);
  return host::deviceDialogNone;
}

std::shared_ptr<host::Touchpanel> MainWindowOperations::AddInterface(std::int16_t iModelID,
                                                                     std::int16_t iParentID,
                                                                     const std::string& strName) {
  note("AddInterface " + std::to_string(iModelID));
  const DocumentPtr& document = session_->data();
  const DefinitionPtr definition = document->library->findInterface(iModelID);
  const DevicePtr parent = document->find(iParentID, Kind::device);
  if (!definition || !parent) {
    document->lastError = definition ? "The user interface can't be added: there is no device " +
                                           std::to_string(iParentID) + " that it could belong to."
                                     : "The device library has no user interface of model " +
                                           std::to_string(iModelID) + ".";
    return nullptr;
  }
  const std::string name = strName.empty() ? definition->name : strName;
  DevicePtr panel = document->findByName(Kind::panel, name, parent->name);
  if (!panel) panel = addDevice(*document, definition, name, iParentID, document->lastError);
  return makeTouchpanel(document, panel);
}

void MainWindowOperations::SetDeviceIPAddress(std::int16_t iDeviceHandle,
                                              const std::string& strAddress) {
  note("SetDeviceIPAddress " + strAddress);
  if (const DevicePtr device = session_->data()->findByHandle(iDeviceHandle)) {
    device->address = strAddress;
  }
}

std::string MainWindowOperations::GetDeviceIPID(std::int16_t iDeviceHandle) const {
  const DevicePtr device = session_->data()->findByHandle(iDeviceHandle);
  return device ? ipId(*device) : std::string();
}

std::string MainWindowOperations::GetDevicePort(std::int16_t iDeviceHandle) const {
  const DevicePtr device = session_->data()->findByHandle(iDeviceHandle);
  return device && ipId(*device).empty() ? portText(*device) : std::string();
}

std::int16_t MainWindowOperations::GetPowerSensorDeviceHandle(
    std::int16_t iNumber, const std::vector<std::int16_t>& colModels) {
  DocumentData& document = *session_->data();
  for (const std::int16_t model : colModels) {
    for (const SensorHandle& known : document.sensorHandles) {
      if (known.model == model && known.number == iNumber) return known.handle;
    }
    if (!document.library->findModel(model)) continue;
    const std::int16_t handle = document.takeHandle();
    if (handle != 0) document.sensorHandles.push_back({model, iNumber, handle});
    return handle;
  }
  return 0;
}

}  // namespace trellisar
