#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Numbers.h"
#include "generator/Generate.h"
#include "host/Numbers.h"

namespace generator {

std::string Generate::GetDeviceCommandName(std::int16_t iDeviceID, std::int16_t iStandardCommand) {
  const auto device = addin::gDocument().get_Devices()->ItemByID(iDeviceID);
  return device ? device->GetCommandName(forms::decimal(iStandardCommand)) : "";
}

std::string Generate::GetSourceCommandName(std::int16_t iStandardCommand) {
  return GetDeviceCommandName(addin::gAddIn().get_DisplayDeviceID(), iStandardCommand);
}

std::string Generate::GetAuxiliaryCommandName(std::int16_t iDeviceID, std::int16_t ePowerOnOrOff) {
  // A screen or lift goes down when the system goes on.
  return GetDeviceCommandName(iDeviceID, ePowerOnOrOff == addin::pdOn ? host::scDown : host::scUp);
}

}  // namespace generator
