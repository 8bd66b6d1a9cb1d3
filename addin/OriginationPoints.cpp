#include <algorithm>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace addin {
namespace {

/// The port that a transmitter's name ends in, counted from 1; 0 when it ends in anything but 1, 2
/// or 3.
std::int16_t PortOf(const std::string& strName) {
  const std::string strPort = forms::right(strName, 1);
  if (strPort < "1" || strPort > "3") return 0;
  return static_cast<std::int16_t>(strPort.front() - '0');
}

constexpr std::int32_t lPortLength = 4;  // " OL1", at the end of a transmitter's name

void Warn(const std::string& strText) {
  forms::Application::current().messageBox(strText, forms::Buttons::ok, forms::Icon::exclamation);
}

void WarnOfPort(const std::string& strWhat, std::int16_t intIndex, const std::string& strWhere) {
  Warn("Error " + strWhat + " Orlena transmitter on port OL" + forms::decimal(intIndex) + " " +
       strWhere + " Bill of Materials.");
}

std::shared_ptr<host::BillOfMaterials> Bill() {
  return gDocument().get_Reports()->get_BillOfMaterials();
}

}  // namespace

std::vector<std::shared_ptr<host::LibraryDevice>> IAddIn::GetLibraryOriginationPoints() const {
  std::string strError;  // not looked at: a definition that can't be had offers nothing
  auto colTypes = gDocument().GetSlotDefinition(GetDeviceSlot(), strError)->get_LibraryDevices();
  std::erase_if(colTypes, [](const auto& oType) { return oType->get_Kind() != host::kindUsable; });
  return colTypes;
}

void IAddIn::AddOriginationPoint(std::int16_t intIndex, const std::string& strName,
                                 std::int16_t iModelID, std::int16_t iControlEntryID,
                                 const std::string& strLabel) {
  std::int16_t& iPortID = OriginationPoint(intIndex);
  if (IsInSystem(iPortID)) {
    const auto oPresent = gDocument().get_Devices()->Item(iPortID);
    if (IsInSystem(oPresent->get_ID())) {
      if (oPresent->get_ControlEntryID() == iControlEntryID) {
        return RelabelOriginationPoint(*oPresent, strLabel);
      }
      RemoveOriginationPoint(intIndex);
    }
  }
  std::int16_t iDeviceID = iNoDevice;
  const LibraryEntry transmitter{iModelID, iControlEntryID, strCastMaker};
  if (!AddDevice(transmitter, strName, iDeviceID)) return;
  const auto oDevice = gDocument().get_Devices()->Item(iDeviceID);
  oDevice->put_Label(strLabel);
  AddToBillOfMaterials(intIndex, strName, *oDevice);
  iPortID = iDeviceID;  // also without a row in the bill
  HideDevice(iDeviceID);
}

void IAddIn::RelabelOriginationPoint(host::Device& oDevice, const std::string& strLabel) {
  if (oDevice.get_Label() == strLabel) return;
  oDevice.put_Label(strLabel);
  // The panel shows the labels.
  if (const auto oFenlet = gDocument().get_Touchpanels()->ItemByID(m_cast.iFenlet)) {
    oFenlet->put_ProjectBuilt(false);
  }
}

void IAddIn::AddToBillOfMaterials(std::int16_t intIndex, const std::string& strName,
                                  const host::Device& oDevice) {
  const auto colTypes = GetLibraryOriginationPoints();
  const auto itType = std::find_if(colTypes.begin(), colTypes.end(), [&](const auto& oType) {
    return oType->get_ControlEntryID() == oDevice.get_ControlEntryID();
  });
  const std::int32_t lPartID = itType == colTypes.end() ? 0 : (*itType)->get_PartID();
  if (lPartID == 0) {
    Warn("Unknown Orlena transmitter (" + forms::withoutLast(strName, lPortLength) +
         ") will not be added to the Bill of Materials.");
  } else if (!Bill()->AddItem(oDevice.get_ModelID(), 0, lPartID, oDevice.get_ID())) {
    WarnOfPort("adding", intIndex, "to");
  }
}

void IAddIn::RemoveOriginationPoint(std::int16_t intIndex) {
  std::int16_t& iPortID = OriginationPoint(intIndex);
  RemoveDevice(iPortID);  // a failure is shown there
  if (!Bill()->RemoveItem(-std::int32_t{iPortID})) WarnOfPort("removing", intIndex, "from");
  iPortID = iNoDevice;
}

std::int16_t& IAddIn::OriginationPoint(std::int16_t intIndex) {
  return m_cast.iOriginationPoint.at(static_cast<std::size_t>(intIndex - 1));
}

void IAddIn::FindOriginationPoints() {
  const auto colDevices = gDocument().get_Devices()->Items();
  for (const auto& oType : GetLibraryOriginationPoints()) {
    for (const auto& oDevice : colDevices) {
      const std::string strName = oDevice->get_Name();
      if (forms::withoutLast(strName, 1) != oType->get_Name() + " OL") continue;
      if (const std::int16_t iPort = PortOf(strName); iPort > 0) {
        OriginationPoint(iPort) = oDevice->get_ID();
      }
    }
  }
}

}  // namespace addin
