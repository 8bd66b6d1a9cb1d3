#include "addin/Enumerations.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

/// The receiver's entry in the bill of materials; nothing when there is none, and no part is listed
/// then.
std::shared_ptr<host::BillOfMaterialsEntry> FindReceiverBill() {
  host::Document& document = addin::gDocument();
  const auto receiver = document.get_Devices()->Item(addin::gAddIn().get_ReceiverID());
  return document.get_Reports()->get_BillOfMaterials()->Item(receiver->get_DeviceHandle());
}

void RemovePowerSensorPart(host::BillOfMaterialsEntry* bill) {
  if (!bill) return;
  const auto parts = bill->get_Parts();
  if (parts->Exists(host::partKeyPowerSensor)) parts->Remove(host::partKeyPowerSensor);
}

}  // namespace

bool Generate::BuildDisplayPowerPresets() {
  return BuildDisplayPowerControl(addin::pdOn) && BuildDisplayPowerControl(addin::pdOff);
}

bool Generate::BuildDisplayPowerControl(std::int16_t ePowerOnOrOff) {
  addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iDisplayID = settings.get_DisplayDeviceID();
  const auto display = addin::gDocument().get_Devices()->ItemByID(iDisplayID);
  if (!display) return BuildLinkSystemToDisplayPower(ePowerOnOrOff);

  const auto bill = FindReceiverBill();
  bool bOK = true;
  switch (display->get_PowerControlType()) {
    case host::powerSensing:
      // The sensor takes over the input; while that stands there is nothing to be written.
      if (!settings.RemoveDigitalInput(iPowerSensorInput)) return false;
      bOK = BuildSensedPower(ePowerOnOrOff, display, bill.get());
      break;
    case host::powerDiscrete:
      RemovePowerSensorPart(bill.get());
      bOK = AddDiscretePowerSteps(ePowerOnOrOff, iDisplayID);
      break;
    default:
      RemovePowerSensorPart(bill.get());
      break;
  }

  // The sources are written also when the power steps failed.
  if (ePowerOnOrOff == addin::pdOn && settings.get_PowerOnLockoutTime() == 0 &&
      !BuildPowerOnSwitching(FindPreset(GetDisplayPowerPreset(addin::pdOn).sName))) {
    return false;
  }
  return bOK && BuildLinkSystemToDisplayPower(ePowerOnOrOff);
}

//  Display Power On                       Display Power Off
//    Relay_Close  power relay               off command    display       0.1 s
//    delay        power relay               delay          power relay
//    on command   display       0.1 s       Relay_Open     power relay
//                                           delay          display
//                                           second command display       0.1 s
bool Generate::AddDiscretePowerSteps(std::int16_t ePowerOnOrOff, std::int16_t iDeviceID) {
  const std::string sCommand = GetDeviceCommandName(
      iDeviceID, addin::gAddIn().GetStandardCommandIDForPowerControl(ePowerOnOrOff));
  if (sCommand.empty()) {
    WarnOfMissingPowerCommand(ePowerOnOrOff, iDeviceID);
    return true;
  }
  const auto preset = FindSequence(m_run, GetDisplayPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  preset->ClearSteps();

  if (ePowerOnOrOff == addin::pdOn) AppendRelayCloseSteps(*preset);
  AppendStep(*preset, Pulse(iDeviceID, sCommand, sDisplayPulse));
  if (ePowerOnOrOff == addin::pdOff) {
    AppendRelayOpenSteps(*preset);
    AppendSecondPowerOffSteps(*preset);
  }
  return true;
}

void Generate::WarnOfMissingPowerCommand(std::int16_t ePowerOnOrOff, std::int16_t iDeviceID) {
  const auto display =
      addin::gDocument().get_Devices()->ItemByID(addin::gAddIn().get_DisplayDeviceID());
  if (!display || display->get_PowerControlType() != host::powerDiscrete || iDeviceID <= 0) return;
  m_run.AddErrorItem(GetMissingPowerCommandWarning(ePowerOnOrOff), host::severityWarning);
}

void Generate::AppendRelayCloseSteps(host::Preset& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iRelayID = settings.get_PowerRelayID();
  if (iRelayID <= 0) return;
  AppendStep(preset, Command(iRelayID, "Relay_Close"));
  AppendStep(preset, Delay(iRelayID, settings.get_PowerRelayOnDelay()));
}

void Generate::AppendRelayOpenSteps(host::Preset& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iRelayID = settings.get_PowerRelayID();
  if (iRelayID <= 0) return;
  AppendStep(preset, Delay(iRelayID, settings.get_PowerRelayOffDelay()));
  AppendStep(preset, Command(iRelayID, "Relay_Open"));
}

void Generate::AppendSecondPowerOffSteps(host::Preset& preset) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iDisplayID = settings.get_DisplayDeviceID();
  const std::string sCommand = settings.get_sSecondPowerOff();
  const std::int16_t iSeconds = settings.get_iSecondPowerOff();
  if (settings.get_bSecondPowerOff() != 1 || sCommand.empty() || iSeconds <= 0) return;
  AppendStep(preset, Delay(iDisplayID, iSeconds));
  AppendStep(preset, Pulse(iDisplayID, sCommand, sDisplayPulse));
}

}  // namespace generator
