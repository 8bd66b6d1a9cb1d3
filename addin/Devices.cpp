#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Application.h"
#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace addin {

namespace {

void ShowHostError(const std::string& strText) {
  forms::Application::current().messageBox(strText, forms::Buttons::ok, forms::Icon::exclamation);
}

std::string ReceiverName() { return gDocument().get_ControlSystem()->get_Name(); }

/// The device, if it is in the document under an id of its own.
std::shared_ptr<host::Device> FindDevice(std::int16_t iDeviceID) {
  const auto oDevice = gDocument().get_Devices()->ItemByID(iDeviceID);
  return oDevice && IsInSystem(oDevice->get_ID()) ? oDevice : nullptr;
}

/// Enters the driver's command into the map in which the program looks it up. A driver without one
/// gives an entry with an empty command, and nobody is warned.
void SetStandardCommand(host::Device& oDevice, std::int16_t iStandardID) {
  const auto oCommand = std::make_shared<host::StandardCommand>();
  oCommand->put_DeviceID(oDevice.get_ID());
  oCommand->put_StandardID(iStandardID);
  oCommand->put_CommandName(oDevice.GetDefaultCommandName(iStandardID));
  oCommand->put_LibraryID(oDevice.get_LibraryID());
  oCommand->put_Name(forms::decimal(iStandardID));
  std::string strWarning;
  oDevice.AddStandardCommand(oCommand, strWarning);
}

}  // namespace

bool IAddIn::AddDevice(const LibraryEntry& entry, const std::string& strName,
                       std::int16_t& iDeviceID) {
  host::AddDeviceArguments arguments;
  arguments.strName = strName;
  arguments.strParentName = ReceiverName();
  arguments.iModelID = entry.iModelID;
  arguments.iSlot = GetDeviceSlot();
  arguments.bFlag5 = entry.bFlag5;
  arguments.strMaker = entry.strMaker;
  arguments.strModel = entry.strModel;
  arguments.iControlEntryID = entry.iControlEntryID;
  if (!gOwnerForm().AddDevice(arguments)) {
    ShowHostError(arguments.strError);
    return false;
  }
  iDeviceID = arguments.iDeviceID;
  return true;
}

bool IAddIn::RemoveDevice(std::int16_t iDeviceID) {
  if (gDocument().RemoveDevice(iDeviceID, host::removalOfDevice)) return true;
  ShowHostError(gDocument().GetLastError());
  return false;
}

bool IAddIn::AddCastMember(const CastMember& member, std::int16_t& iDeviceID) {
  if (!AddDevice(member.entry, member.strName, iDeviceID)) return false;
  HideDevice(iDeviceID);
  return true;
}

void IAddIn::AddPowerRelay() { AddCastMember(powerRelay, m_cast.iPowerRelay); }

void IAddIn::RemovePowerRelay() {
  if (IsInSystem(m_cast.iPowerRelay) && RemoveDevice(m_cast.iPowerRelay)) {
    m_cast.iPowerRelay = iNoDevice;
  }
}

void IAddIn::AddKestrum() {
  if (!AddDevice(kestrumInterface.entry, kestrumInterface.strName, m_cast.iKestrum)) return;
  const auto oDevice = gDocument().get_Devices()->Item(m_cast.iKestrum);
  if (IsInSystem(oDevice->get_ID())) {
    gOwnerForm().SetDeviceIPAddress(oDevice->get_DeviceHandle(), "127.0.0.1");
  }
  HideDevice(m_cast.iKestrum);
}

/// The motion detector never outlives the monitoring interface. The id is not tested and a failure,
/// which is shown, does not end the operation: the interface counts as gone in every case.
void IAddIn::RemoveKestrum() {
  RemoveDevice(m_cast.iKestrum);
  RemoveOccupancySensor();
  m_cast.iKestrum = iNoDevice;
}

void IAddIn::AddOccupancySensor() {
  if (RemoveDigitalInput(iOccupancyInput)) AddCastMember(motionDetector, m_cast.iOccupancySensor);
}

void IAddIn::RemoveOccupancySensor() {
  if (!IsInSystem(m_cast.iOccupancySensor) || !RemoveDevice(m_cast.iOccupancySensor)) return;
  AddDigitalInput(iOccupancyInput);  // a failure is shown there; the detector is gone all the same
  m_cast.iOccupancySensor = iNoDevice;
}

bool IAddIn::AddDigitalInput(std::int16_t iInput) {
  const std::string strName = DigitalInputName(iInput);
  std::int16_t iDeviceID = iNoDevice;
  return AddCastMember({strName.c_str(), digitalInput}, iDeviceID);
}

bool IAddIn::RemoveDigitalInput(std::int16_t iInput) {
  const std::int16_t iDeviceID = GetDigitalInputID(iInput);
  return !IsInSystem(iDeviceID) || RemoveDevice(iDeviceID);
}

std::int16_t IAddIn::GetDigitalInputID(std::int16_t iInput) const {
  return FindInCast(DigitalInputName(iInput));
}

void IAddIn::AddFenlet() {
  const auto oPanel =
      gOwnerForm().AddInterface(host::modelFenlet, gDocument().get_ControlSystem()->get_ID(), "");
  if (!oPanel) return;
  oPanel->put_ConnectSlot(GetDeviceSlot());
  m_cast.iFenlet = oPanel->get_ID();
}

void IAddIn::RemoveFenlet() {
  if (IsInSystem(m_cast.iFenlet) &&
      !gDocument().RemoveTouchpanel(m_cast.iFenlet, host::removalOfTouchpanel)) {
    ShowHostError(gDocument().GetLastError());
  }
  m_cast.iFenlet = iNoDevice;
}

void IAddIn::HideDevice(std::int16_t iDeviceID) {
  if (const auto oDevice = gDocument().get_Devices()->ItemByID(iDeviceID)) {
    oDevice->put_ShowInTree(false);
  }
}

void IAddIn::put_DisplayDeviceID(std::int16_t iDeviceID) {
  m_cast.iDisplayDevice = iDeviceID;
  HideDevice(iDeviceID);
  if (const auto oDevice = FindDevice(iDeviceID)) {
    SetStandardCommand(*oDevice, host::scRGB1);
    SetStandardCommand(*oDevice, host::scVideo1);
    SetUpPower(iDeviceID);
    // No page would show a second Power Off that this display can't send.
    if (!oDevice->get_SecondOffCapable()) m_settings.bSecondPowerOff = false;
  }
}

/// The power mode that the driver suggests.
void IAddIn::SetUpPower(std::int16_t iDeviceID) {
  const auto oDevice = FindDevice(iDeviceID);
  if (!oDevice) return;
  SetStandardCommand(*oDevice, host::scOn);
  SetStandardCommand(*oDevice, host::scOff);
  if (!oDevice->GetDefaultCommandName(host::scOn).empty() &&
      !oDevice->GetDefaultCommandName(host::scOff).empty()) {
    oDevice->put_PowerControlType(host::powerDiscrete);
    return;
  }
  const bool bToggles = oDevice->GetCommandList(host::directionInput, host::signalDigital)
                            ->Exists(host::commandPowerToggle);
  oDevice->put_PowerControlType(bToggles ? host::powerSensing : host::powerNone);
}

void IAddIn::put_ScreenDeviceID(std::int16_t iDeviceID) {
  m_cast.iScreenDevice = iDeviceID;
  SetUpAuxiliaryDevice(iDeviceID);
}

void IAddIn::put_LiftDeviceID(std::int16_t iDeviceID) {
  m_cast.iLiftDevice = iDeviceID;
  SetUpAuxiliaryDevice(iDeviceID);
}

void IAddIn::SetUpAuxiliaryDevice(std::int16_t iDeviceID) {
  HideDevice(iDeviceID);
  if (const auto oDevice = FindDevice(iDeviceID)) {
    SetStandardCommand(*oDevice, host::scUp);
    SetStandardCommand(*oDevice, host::scDown);
  }
}

std::string IAddIn::GetAuxiliaryDeviceName(std::int16_t eDeviceType) const {
  if (eDeviceType == adtScreen) return strScreen;
  return eDeviceType == adtLift ? strLift : "";
}

bool IAddIn::SetDeviceLabel(std::int16_t iDeviceID, const std::string& strLabel) {
  const auto oDevice = gDocument().get_Devices()->Item(iDeviceID);
  if (!IsInSystem(oDevice->get_ID())) return false;
  if (!forms::equalsIgnoringCase(oDevice->get_Label(), strLabel)) {
    oDevice->put_Label(strLabel);
    gDocument().MarkChanged();
  }
  return true;
}

std::int16_t IAddIn::GetStandardCommandIDForPowerControl(std::int16_t ePowerOnOrOff) const {
  return ePowerOnOrOff == pdOn ? host::scOn : host::scOff;
}

std::int16_t IAddIn::ShowAddReplaceDeviceDialog(host::DeviceDialogArguments& arguments) {
  return gOwnerForm().ShowAddReplaceDeviceDialog(arguments);
}

}  // namespace addin
