#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/AttributeText.h"
#include "forms/Numbers.h"

namespace addin {
namespace {

/// The names of the rows of the settings block.
namespace rows {
constexpr const char* volumeKnob = "Volume Knob Control";
constexpr const char* micMode = "Mic Mode Control";
constexpr const char* muteOnInput3 = "Mute on Digital Input 3 contact";
constexpr const char* use3OLReceiver = "Always use the 3 OL receiver";
constexpr const char* secondOffSend = "Second Power Off command Send";
constexpr const char* secondOffName = "Second Power Off command Name";
constexpr const char* secondOffTime = "Second Power Off command Time";
constexpr const char* relayOnDelay = "Power Relay Power On Delay";
constexpr const char* relayOffDelay = "Power Relay Power Off Delay";
constexpr const char* onLockout = "Power On Lockout Time";
constexpr const char* offLockout = "Power Off Lockout Time";
constexpr const char* contactOption = "Contact Closure Option";
constexpr const char* onPulse0 = "Power On Pulse Time 0";
constexpr const char* onPulse1 = "Power On Pulse Time 1";
constexpr const char* offPulse0 = "Power Off Pulse Time 0";
constexpr const char* offPulse1 = "Power Off Pulse Time 1";
constexpr const char* fenletPassword = "Fenlet Password";
constexpr const char* sensorTimeout = "Motion Sensor Timeout";
}  // namespace rows

constexpr std::int16_t defaultRelayOffDelay = 120;
constexpr std::int16_t defaultOnLockout = 30;
constexpr std::int16_t defaultOffLockout = 120;
constexpr const char* defaultPassword = "mossgate";

std::int16_t FoundID(const std::string& strName, const std::string& strParentName) {
  const auto oDevice = gDocument().get_Devices()->FindByName(strName, strParentName);
  return oDevice ? oDevice->get_ID() : std::int16_t{0};
}

}  // namespace

void IAddIn::SetStoredDefaults() {
  m_sSecondPowerOff.clear();
  m_iSecondPowerOff = 0;
  m_iPowerRelayOnDelay = 0;
  m_iPowerRelayOffDelay = defaultRelayOffDelay;
  m_iPowerOnLockoutTime = defaultOnLockout;
  m_iPowerOffLockoutTime = defaultOffLockout;
  m_iPowerContactClosureOption = contactUnused;
  m_lPowerOnPulseTime.fill(0);
  m_lPowerOffPulseTime.fill(0);
  m_strFenletPassword = defaultPassword;
}

/// The sensor's timeout and the two audio choices keep what they hold.
void IAddIn::ResetSettings() {
  SetStoredDefaults();
  m_bMuteOnDigInp3 = false;
  m_bUse3OLReceiver = false;
  m_bSecondPowerOff = false;

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
  const std::string strBlock =
      gDocument().get_SystemInfo()->GetAddInAttributes(IAddInContract_Title());
  if (strBlock.empty()) {
    SetStoredDefaults();
    m_strVolumeKnobControl = "0d";
    m_strMicModeControl = "0d";
    m_iMotionSensorTimeout = 0;
    return true;
  }
  const auto Text = [&](const char* row) { return common::GetAttributeValue(strBlock, row); };
  const auto Bool = [&](const char* row) { return common::GetAttributeValueBool(strBlock, row); };
  const auto Int = [&](const char* row) { return common::GetAttributeValueInt(strBlock, row); };
  const auto Long = [&](const char* row) { return common::GetAttributeValueLong(strBlock, row); };

  m_strVolumeKnobControl = Text(rows::volumeKnob);
  m_strMicModeControl = Text(rows::micMode);
  m_bMuteOnDigInp3 = Bool(rows::muteOnInput3);
  m_bUse3OLReceiver = Bool(rows::use3OLReceiver);
  m_bSecondPowerOff = Bool(rows::secondOffSend);
  m_sSecondPowerOff = Text(rows::secondOffName);
  m_iSecondPowerOff = Int(rows::secondOffTime);
  m_iPowerRelayOnDelay = Int(rows::relayOnDelay);
  m_iPowerRelayOffDelay = Int(rows::relayOffDelay);
  put_PowerOnLockoutTime(Int(rows::onLockout));
  put_PowerOffLockoutTime(Int(rows::offLockout));
  m_iPowerContactClosureOption = Int(rows::contactOption);
  m_lPowerOnPulseTime = {Long(rows::onPulse0), Long(rows::onPulse1)};
  m_lPowerOffPulseTime = {Long(rows::offPulse0), Long(rows::offPulse1)};
  m_strFenletPassword = Text(rows::fenletPassword);
  m_iMotionSensorTimeout = Int(rows::sensorTimeout);
  return true;
}

bool IAddIn::SaveAttributes() {
  std::string strBlock;
  const auto Text = [&](const char* row, const std::string& value) {
    common::SetAttributeValue(strBlock, row, value);
  };
  const auto Bool = [&](const char* row, bool value) { Text(row, value ? "True" : "False"); };
  const auto Number = [&](const char* row, std::int32_t value) {
    Text(row, forms::decimal(value));
  };

  Text(rows::volumeKnob, m_strVolumeKnobControl);
  Text(rows::micMode, m_strMicModeControl);
  Bool(rows::muteOnInput3, m_bMuteOnDigInp3);
  Bool(rows::use3OLReceiver, m_bUse3OLReceiver);
  Bool(rows::secondOffSend, m_bSecondPowerOff);
  Text(rows::secondOffName, m_sSecondPowerOff);
  Number(rows::secondOffTime, m_iSecondPowerOff);
  Number(rows::relayOnDelay, m_iPowerRelayOnDelay);
  Number(rows::relayOffDelay, m_iPowerRelayOffDelay);
  Number(rows::onLockout, m_iPowerOnLockoutTime);
  Number(rows::offLockout, m_iPowerOffLockoutTime);
  Number(rows::contactOption, m_iPowerContactClosureOption);
  Number(rows::onPulse0, m_lPowerOnPulseTime[0]);
  Number(rows::onPulse1, m_lPowerOnPulseTime[1]);
  Number(rows::offPulse0, m_lPowerOffPulseTime[0]);
  Number(rows::offPulse1, m_lPowerOffPulseTime[1]);
  Text(rows::fenletPassword, m_strFenletPassword);
  Number(rows::sensorTimeout, m_iMotionSensorTimeout);
  gDocument().get_SystemInfo()->SetAddInAttributes(IAddInContract_Title(), strBlock);
  return true;
}

}  // namespace addin
