#include <algorithm>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Text.h"

namespace addin {
namespace {

/// The port that a transmitter's name ends in, counted from 1; 0 when it ends in anything but 1, 2
/// or 3.
std::int16_t PortOf(const std::string& strName) {
  const std::string strPort = forms::right(strName, 1);
  if (strPort < "1" || strPort > "3") return 0;
  return static_cast<std::int16_t>(strPort.front() - '0');
}

}  // namespace

std::vector<std::shared_ptr<host::LibraryDevice>> IAddIn::GetLibraryOriginationPoints() const {
  std::string strError;  // not looked at: a definition that can't be had offers nothing
  auto colTypes = gDocument().GetSlotDefinition(GetDeviceSlot(), strError)->get_LibraryDevices();
  std::erase_if(colTypes, [](const auto& oType) { return oType->get_Kind() != host::kindUsable; });
  return colTypes;
}

void IAddIn::FindOriginationPoints() {
  const auto colDevices = gDocument().get_Devices()->Items();
  for (const auto& oType : GetLibraryOriginationPoints()) {
    for (const auto& oDevice : colDevices) {
      const std::string strName = oDevice->get_Name();
      if (forms::withoutLast(strName, 1) != oType->get_Name() + " OL") continue;
      if (const std::int16_t iPort = PortOf(strName); iPort > 0) {
        m_iOriginationPointID.at(static_cast<std::size_t>(iPort - 1)) = oDevice->get_ID();
      }
    }
  }
}

}  // namespace addin
