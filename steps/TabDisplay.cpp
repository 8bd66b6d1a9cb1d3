#include "steps/TabDisplay.h"

#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/modHTMLHelp.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"
#include "forms/Rows.h"
#include "host/Numbers.h"
#include "steps/StandardCommands.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::gOwnerForm;
using addin::IsInSystem;

constexpr std::int16_t iRowOn = 0;  // the rows of the relay's delays
constexpr std::int16_t iRowOff = 1;
constexpr std::int32_t lDelayLength = 3;
constexpr std::int32_t lLongestDelay = 999;

}  // namespace

TabDisplay::TabDisplay(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Display Device", host::helpDisplayDeviceTab) {
  MakeBanner(lblBanner);
  SetTabStops(false);
  lblDisplayHelp.setLink(true);
  SetStandardID(ctlCommands(0), host::scRGB1);
  SetStandardID(ctlCommands(1), host::scVideo1);
  HoldDelays();
  ConnectEvents();
  LayOut();
}

void TabDisplay::HoldDelays() {
  txtDelay.each([](std::int16_t, NumberBox& box) { box.setMaxLength(lDelayLength); });
  txtDelay(iRowOn).Hold({
      .Get = [] { return gAddIn().get_PowerRelayOnDelay(); },
      .Put = [](float sng) { gAddIn().put_PowerRelayOnDelay(forms::toInt16(sng)); },
      .range = {{.strLabel = "The time value for the power relay power on delay",
                 .iMax = lLongestDelay,
                 .pSaving = &m_bSaving}},
  });
  txtDelay(iRowOff).Hold({
      .Get = [] { return gAddIn().get_PowerRelayOffDelay(); },
      .Put = [](float sng) { gAddIn().put_PowerRelayOffDelay(forms::toInt16(sng)); },
      .range = {{.strLabel = "The time value for the power relay power off delay",
                 .iMax = lLongestDelay,
                 .pSaving = &m_bSaving}},
  });
}

void TabDisplay::ConnectEvents() {
  cmdChoose.click.connect([this] { cmdChoose_Click(); });
  cmdProperties.click.connect([this] { cmdProperties_Click(); });
  chkPowerRelay.click.connect([this] { chkPowerRelay_Click(); });
  lblDisplayHelp.click.connect([this] { lblDisplayHelp_Click(); });
  ctlCommands.each([this](std::int16_t Index, host::DeviceCommands& ctlSelector) {
    ctlSelector.CommandChanged.connect([this, Index] { ctlCommands_CommandChanged(Index); });
  });
  offer("SetData", [this] { SetData(); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
}

void TabDisplay::SetTabStops(bool bValue) {
  ctlCommands(0).setTabStop(bValue);
  ctlCommands(1).setTabStop(bValue);
}

std::vector<std::string> TabDisplay::GetTabs(std::int16_t iDeviceID) const {
  std::vector<std::string> colTabs{host::progIDPageBasic};
  const auto oDevice = gDocument().get_Devices()->ItemByID(iDeviceID);
  if (!oDevice) return colTabs;
  if (oDevice->get_DeviceHandle() >= 1) colTabs.push_back(host::progIDPageIOAssignment);
  if (oDevice->HasProperties(false)) colTabs.push_back(host::progIDPageProperties);
  return colTabs;
}

bool TabDisplay::iTab_SaveData() {
  m_bSaving = true;
  return false;
}

bool TabDisplay::SetData() {
  m_bSaving = false;
  cmdProperties.setVisible(false);
  ctlImageDisplay.put_Picture(LargePicture(host::pictureDisplay));
  const forms::ImageList& images = addin::frmImages().get_ImageList();
  ctlCommands(0).SetImages(images);
  ctlCommands(1).SetImages(images);
  RefreshDeviceInfo();
  const bool bDevice = IsInSystem(gAddIn().get_DisplayDeviceID());
  SetPowerRelayControls(bDevice && IsInSystem(gAddIn().get_PowerRelayID()));
  ShowDeviceControls(bDevice);
  ShowInfoFrame(!bDevice);
  return false;
}

void TabDisplay::RefreshDeviceInfo() {
  if (!addin::IsDocumentSet()) return;
  const auto oDevice = FindDisplay();
  if (oDevice) {
    lblDescription.setCaption(oDevice->get_Description());
    lblDescription.setToolTip(oDevice->get_Description());
    lblIOAssignment.setCaption(oDevice->get_IOAssignment());
  }
  ShowInfoFrame(!oDevice);
  LoadSwitchingCommands();
  ShowDeviceControls(true);  // also without a device: the caller hides them again
  if (oDevice) {
    cmdProperties.setVisible(oDevice->HasProperties(false) || !oDevice->get_SecondOffCapable());
  }
}

void TabDisplay::ShowInfoFrame(bool bShow) {
  ShowDescription(!bShow);
  frameInfo.Show(bShow);
}

void TabDisplay::ShowDescription(bool bShow) {
  lblDescriptionTag.setVisible(bShow);
  lblDescription.setVisible(bShow);
  lblIOAssignmentTag.setVisible(bShow);
  lblIOAssignment.setVisible(bShow);
}

void TabDisplay::ShowDeviceControls(bool bShow) {
  chkPowerRelay.setVisible(bShow);
  for (const std::int16_t i : {iRowOn, iRowOff}) {
    lblDelay(i).setVisible(bShow);
    txtDelay(i).setVisible(bShow);
    lblDelaySeconds(i).setVisible(bShow);
  }
  lblSwitch.setVisible(bShow);
  for (const std::int16_t i : {std::int16_t{0}, std::int16_t{1}}) {
    ctlCommands(i).setVisible(bShow);
    lblTransport(i).setVisible(bShow);
  }
  frameCommand.setEnabled(bShow);
}

void TabDisplay::LoadSwitchingCommands() {
  const forms::Guard loading(m_bLoading);
  const auto oDevice = FindDisplay();
  if (!oDevice) return;
  ctlCommands.each([&](std::int16_t, host::DeviceCommands& ctlSelector) {
    LoadStandardCommand(ctlSelector, *oDevice);
  });
}

void TabDisplay::ctlCommands_CommandChanged(std::int16_t Index) {
  const auto oDevice = FindDisplay();
  // A selector that the device's map has no entry for changes nothing.
  if (oDevice) StoreStandardCommand(ctlCommands(Index), *oDevice);
}

void TabDisplay::cmdChoose_Click() {
  cmdChoose.setEnabled(false);
  const forms::AtEnd closed([this] { cmdChoose.setEnabled(true); });
  host::DeviceDialogArguments arguments;
  arguments.iParentID = gDocument().get_ControlSystem()->get_ID();
  arguments.lDialogContext = gDocument().get_Reports()->get_DialogContext();
  arguments.iDeviceID = gAddIn().get_DisplayDeviceID();
  arguments.strName = addin::strDisplayDevice;
  arguments.strTitle = "Select a Display Device";
  arguments.iNumber7 = 4;
  arguments.bFlag10 = true;
  arguments.bFlag11 = true;
  arguments.strCategory12 = "Video/Data Projector";
  const std::int16_t iResult = gAddIn().ShowAddReplaceDeviceDialog(arguments);
  if (iResult == host::deviceDialogNone) {
    ShowInfoFrame(true);
  } else if (iResult != host::deviceDialogUnchanged) {
    gAddIn().put_DisplayDeviceID(iResult);
    RefreshDeviceInfo();
  }
}

void TabDisplay::cmdProperties_Click() { ShowDeviceProperties(gAddIn().get_DisplayDeviceID()); }

void TabDisplay::ShowDeviceProperties(std::int16_t iDeviceID) {
  gOwnerForm().ShowControlledDeviceProperties(iDeviceID, GetTabs(iDeviceID));
  RefreshDeviceInfo();  // the dialog may have changed the description and the assignment
}

void TabDisplay::SetPowerRelayControls(bool bEnabled) {
  const forms::Guard loading(m_bLoading);
  chkPowerRelay.setChecked(bEnabled);
  ShowDelayRow(iRowOn, bEnabled);
  ShowDelayRow(iRowOff, bEnabled);
}

void TabDisplay::ShowDelayRow(std::int16_t Index, bool bEnabled) {
  lblDelay(Index).setEnabled(bEnabled);
  if (bEnabled) {
    txtDelay(Index).ShowStored();
  } else {
    txtDelay(Index).setText("");
  }
  txtDelay(Index).setEnabled(bEnabled);
  lblDelaySeconds(Index).setEnabled(bEnabled);
}

void TabDisplay::chkPowerRelay_Click() {
  if (m_bLoading) return;
  if (!chkPowerRelay.isChecked()) {
    gAddIn().RemovePowerRelay();
    ShowDelayRow(iRowOn, false);
    ShowDelayRow(iRowOff, false);
    return;
  }
  gAddIn().AddPowerRelay();
  if (!IsInSystem(gAddIn().get_PowerRelayID())) {
    const forms::Guard loading(m_bLoading);
    chkPowerRelay.setChecked(false);
    return;
  }
  ShowDelayRow(iRowOn, true);
  ShowDelayRow(iRowOff, true);
}

void TabDisplay::lblDisplayHelp_Click() {
  common::ShowHelpTopic(gAddIn().GetActiveWindowHandle(), host::helpDisplayDeviceRequirements);
}

void TabDisplay::LayOut() {
  using namespace forms;
  constexpr Twips lLine = 195;
  constexpr Twips lDescription = 4 * lLine;
  const Size tagSize{naturalSize(lblDescriptionTag).width, lDescription};  // beside the first line
  layOut(pageArea, {
                       rest(lblBanner),
                       row({item(Label1), spring(), item(lblDisplayHelp)}),
                       box(Frame3,
                           {
                               row({
                                   item(ctlImageDisplay, sizeOfPicture),
                                   either({
                                       columns({
                                           {item(lblDescriptionTag, tagSize),
                                            rest(lblDescription, lDescription)},
                                           {item(lblIOAssignmentTag), rest(lblIOAssignment, lLine)},
                                       }),
                                       frameInfo.Place(),
                                   }),
                                   column({wide(cmdChoose, 1350), wide(cmdProperties, 1350)}),
                               }),
                           }),
                       box(frameCommand,
                           {
                               item(lblSwitch),
                               columns({
                                   {names(lblTransport(0), ctlCommands(0)), rest(ctlCommands(0))},
                                   {names(lblTransport(1), ctlCommands(1)), rest(ctlCommands(1))},
                               }),
                           }),
                       item(chkPowerRelay),
                       indented({
                           columns({
                               {names(lblDelay(0), txtDelay(0)), wide(txtDelay(0), lNumberBoxWidth),
                                names(lblDelaySeconds(0), txtDelay(0))},
                               {names(lblDelay(1), txtDelay(1)), wide(txtDelay(1), lNumberBoxWidth),
                                names(lblDelaySeconds(1), txtDelay(1))},
                           }),
                       }),
                   });
  frameInfo.PlaceBorder();
}

}  // namespace steps
