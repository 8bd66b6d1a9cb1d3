#include "addin/Cast.h"

#include "addin/modGlobals.h"
#include "forms/Numbers.h"

namespace addin {

std::string DigitalInputName(std::int16_t iInput) {
  return "Digital Input " + forms::decimal(iInput);
}

std::int16_t FindInCast(const std::string& strName) {
  const std::string strReceiver = gDocument().get_ControlSystem()->get_Name();
  const auto oDevice = gDocument().get_Devices()->FindByName(strName, strReceiver);
  return oDevice ? oDevice->get_ID() : iNoDevice;
}

}  // namespace addin
