#include "addin/IAddIn.h"
#include "addin/modGlobals.h"

namespace addin {

void IAddIn::ResetSettings() {
  ResetStoredSettings(m_settings);
  m_cast = {};
}

bool IAddIn::FileOpen() {
  ResetSettings();
  FindOriginationPoints();
  m_cast.iReceiver = gDocument().get_SystemInfo()->get_ControlSystemID();

  m_cast.iDisplayDevice = FindInCast(strDisplayDevice);
  m_cast.iPowerRelay = FindInCast(powerRelay.strName);
  m_cast.iKestrum = FindInCast(kestrumInterface.strName);
  m_cast.iOccupancySensor = FindInCast(motionDetector.strName);
  const std::string strReceiver = gDocument().get_ControlSystem()->get_Name();
  if (const auto oFenlet = gDocument().get_Touchpanels()->FindByName(strFenlet, strReceiver)) {
    m_cast.iFenlet = oFenlet->get_ID();
  }
  m_cast.iScreenDevice = FindInCast(strScreen);
  m_cast.iLiftDevice = FindInCast(strLift);

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
