#include "generator/Devices.h"

#include <algorithm>

#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Components.h"
#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace generator {
namespace {

template <typename Modules>
auto FindByShortName(const Modules& modules, const std::string& sShortName) {
  const auto found = std::find_if(modules.begin(), modules.end(), [&](const auto& module) {
    return forms::equalsIgnoringCase(module->get_ShortName(), sShortName);
  });
  return found == modules.end() ? nullptr : *found;
}

}  // namespace

DevicePtr FindDisplay() {
  return addin::gDocument().get_Devices()->ItemByID(addin::gAddIn().get_DisplayDeviceID());
}

std::string GetDeviceCommandName(std::int16_t iDeviceID, std::int16_t iStandardCommand) {
  const auto device = addin::gDocument().get_Devices()->ItemByID(iDeviceID);
  return device ? device->GetCommandName(forms::decimal(iStandardCommand)) : "";
}

std::string GetSourceCommandName(std::int16_t iStandardCommand) {
  return GetDeviceCommandName(addin::gAddIn().get_DisplayDeviceID(), iStandardCommand);
}

std::string GetAuxiliaryCommandName(std::int16_t iDeviceID, std::int16_t ePowerOnOrOff) {
  // A screen or lift goes down when the system goes on.
  return GetDeviceCommandName(iDeviceID, ePowerOnOrOff == addin::pdOn ? host::scDown : host::scUp);
}

bool SetProperty(Run& run, const host::Device& device, const std::string& sProperty,
                 const std::string& sValue) {
  const auto property = device.GetProperty(sProperty);
  if (!property) return run.FailedToFind(sProperty);
  return property->SetValue(sValue) || run.FailedToSetProperty(sProperty, sValue);
}

DevicePtr FindModule(const host::Device& device, const std::string& sShortName) {
  return FindByShortName(device.get_Modules(), sShortName);
}

host::ModuleList ModulesFromLibrary(const std::string& sShortName, std::int16_t iDeviceID) {
  host::ModuleList colModules;
  const auto entry = FindByShortName(addin::gLibraryManager().get_Modules(), sShortName);
  if (!entry) return colModules;
  const auto module = forms::createObject<host::Device>(host::progIDDevice);
  module->put_LibraryID(entry->get_ID());
  module->put_ShortName(entry->get_ShortName());
  module->put_Name(entry->get_Name());
  module->put_Description(entry->get_Description());
  module->put_Maker(entry->get_Maker());
  module->CreateFromLibrary(entry, iDeviceID);
  colModules.Add(module, entry->get_ShortName());
  return colModules;
}

}  // namespace generator
