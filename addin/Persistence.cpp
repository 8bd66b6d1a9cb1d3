#include "addin/IAddIn.h"
#include "addin/modGlobals.h"

namespace addin {
namespace {

std::int16_t FoundID(const std::string& strName, const std::string& strParentName) {
  const auto oDevice = gDocument().get_Devices()->FindByName(strName, strParentName);
  return oDevice ? oDevice->get_ID() : std::int16_t{0};
}

}  // namespace

void IAddIn::ResetSettings() {
  ResetStoredSettings(m_settings);
  m_iReceiverID = 0;
  m_iDisplayDeviceID = 0;
  m_iPowerRelayID = 0;
  m_iKestrumID = 0;
  m_iOccupancySensorID = 0;
  m_iFenletID = 0;
  m_iScreenDeviceID = 0;
  m_iLiftDeviceID = 0;
  m_iOriginationPointID.fill(0);
}

bool IAddIn::FileOpen() {
  ResetSettings();
  FindOriginationPoints();
  m_iReceiverID = gDocument().get_SystemInfo()->get_ControlSystemID();

  const std::string strReceiver = gDocument().get_ControlSystem()->get_Name();
  m_iDisplayDeviceID = FoundID("Display Device", strReceiver);
  m_iPowerRelayID = FoundID("Power Relay", strReceiver);
  m_iKestrumID = FoundID("Kestrum Interface", strReceiver);
  m_iOccupancySensorID = FoundID("Motion Detector", strReceiver);
  if (const auto oFenlet = gDocument().get_Touchpanels()->FindByName("Fenlet", strReceiver)) {
    m_iFenletID = oFenlet->get_ID();
  }
  m_iScreenDeviceID = FoundID("Screen", strReceiver);
  m_iLiftDeviceID = FoundID("Lift", strReceiver);

  LoadAttributes();
  m_bFolderChecksOK = true;
  SetLibraryFilter();
  return true;
}

bool IAddIn::LoadAttributes() {
  const auto clsInfo = gDocument().get_SystemInfo();
  ReadSettingsBlock(clsInfo->GetAddInAttributes(IAddInContract_Title()), m_settings);
  return true;
}

bool IAddIn::SaveAttributes() {
  const auto clsInfo = gDocument().get_SystemInfo();
  clsInfo->SetAddInAttributes(IAddInContract_Title(), WriteSettingsBlock(m_settings));
  return true;
}

}  // namespace addin
