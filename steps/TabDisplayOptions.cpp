#include "steps/TabDisplayOptions.h"

#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Rows.h"
#include "host/Numbers.h"
#include "steps/StandardCommands.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::IsInSystem;

constexpr std::int16_t iScreen = 0;
constexpr std::int16_t iLift = 1;
constexpr std::int32_t lLongestPulse = 655;

/// What differs between the pages.
struct Page {
  addin::enumAuxiliaryDeviceType eDeviceType;
  const char* strCategory;  // of the devices that the dialog offers
  const char* strLabel;
  const char* strField;  // what a message calls the device
  host::enumPicture ePicture;
};

constexpr std::array<Page, 2> pages{{
    {addin::adtScreen, "Screen", "SCREEN", "Screen", host::pictureScreen},
    {addin::adtLift, "Projector Lift", "LIFT", "Lift", host::pictureLift},
}};

const Page& PageOf(std::int16_t Index) { return pages.at(static_cast<std::size_t>(Index)); }

std::shared_ptr<host::Device> FindDevice(std::int16_t iDeviceID) {
  return gDocument().get_Devices()->ItemByID(iDeviceID);
}

}  // namespace

TabDisplayOptions::PowerRow::PowerRow(const forms::ControlArray<forms::Frame>& frames, bool bIsOn)
    : bOn(bIsOn),
      lblPower(
          bOn ? "lblPowerOn" : "lblPowerOff",
          {{iScreen, frames(iScreen), bOn ? "When system powers ON:" : "When system powers OFF:"},
           {iLift, frames(iLift), bOn ? "When system powers ON:" : "When system powers OFF:"}}),
      lblCommand(
          bOn ? "lblCommandOn" : "lblCommandOff",
          {{iScreen, frames(iScreen), "Send command:"}, {iLift, frames(iLift), "Send command:"}}),
      ctlPower(bOn ? "ctlPowerOn" : "ctlPowerOff",
               {{iScreen, frames(iScreen)}, {iLift, frames(iLift)}}),
      lblFor(bOn ? "lblForOn" : "lblForOff",
             {{iScreen, frames(iScreen), "for"}, {iLift, frames(iLift), "for"}}),
      txtPulseTime(bOn ? "txtPulseTimeOn" : "txtPulseTimeOff",
                   {{iScreen, frames(iScreen)}, {iLift, frames(iLift)}}),
      lblSeconds(bOn ? "lblSecondsOn" : "lblSecondsOff",
                 {{iScreen, frames(iScreen), "seconds"}, {iLift, frames(iLift), "seconds"}}) {
  ctlPower.each([this](std::int16_t, host::DeviceCommands& ctlSelector) {
    SetStandardID(ctlSelector, bOn ? host::scDown : host::scUp);
  });
  txtPulseTime.each([this](std::int16_t, forms::TextBox& box) {
    box.setAccessibleName(bOn ? "Seconds of the Power On command"
                              : "Seconds of the Power Off command");
  });
}

TabDisplayOptions::TabDisplayOptions(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Display Options", host::helpDisplayOptionsTab) {
  MakeBanner(lblBanner);
  SetTabStops(false);
  for (const std::int16_t Index : {iScreen, iLift}) {
    cmdChoose(Index).setVisible(false);
    ShowPulseTime(rowOn, Index, false);
    ShowPulseTime(rowOff, Index, false);
  }
  ConnectEvents();
  LayOut();
}

void TabDisplayOptions::ConnectEvents() {
  for (const std::int16_t Index : {iScreen, iLift}) {
    chkInclude(Index).click.connect([this, Index] { chkInclude_Click(Index); });
    cmdChoose(Index).click.connect([this, Index] { cmdChoose_Click(Index); });
    ConnectRow(rowOn, Index);
    ConnectRow(rowOff, Index);
  }
  offer("SetData", [this] { SetData(); });
  offer<bool&>("BeforeTabChange", [this](bool& bCancel) { BeforeTabChange(bCancel); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
}

void TabDisplayOptions::ConnectRow(const PowerRow& powerRow, std::int16_t Index) {
  powerRow.ctlPower(Index).CommandChanged.connect(
      [this, &powerRow, Index] { CommandChanged(powerRow, Index); });
  powerRow.txtPulseTime(Index).Hold({
      .Get = [this, &powerRow, Index] { return get_PulseTime(powerRow, Index); },
      .Put = [this, &powerRow, Index](float sng) { put_PulseTime(powerRow, Index, sng); },
      .range = {{.strLabel = std::string("The pulse time value for the ") + PageOf(Index).strField +
                             (powerRow.bOn ? " On" : " Off") + " command",
                 .iMax = lLongestPulse,
                 .pSaving = &m_bSaving}},
      .bStoredByEnter = true,
  });
}

void TabDisplayOptions::SetTabStops(bool bValue) {
  for (const std::int16_t Index : {iScreen, iLift}) {
    chkInclude(Index).setTabStop(bValue);
    cmdChoose(Index).setTabStop(bValue);
  }
}

bool TabDisplayOptions::SetData() {
  m_bSaving = false;
  SetPageData(iScreen);
  SetPageData(iLift);
  return false;
}

void TabDisplayOptions::SetPageData(std::int16_t Index) {
  ctlImage(Index).put_Picture(LargePicture(PageOf(Index).ePicture));
  frameDevice(Index).setVisible(Index == iScreen ? gAddIn().HasScreenControl()
                                                 : gAddIn().HasLiftControl());
  // The click of the box, where it changes, shows or hides the button.
  const std::int16_t iDeviceID = get_DeviceID(Index);
  const bool bDevice = IsInSystem(iDeviceID);
  chkInclude(Index).setChecked(bDevice);
  ShowDeviceFields(Index, bDevice);
  if (bDevice) {
    ShowDeviceLabels(Index, iDeviceID);
  } else {
    frameInfo.at(static_cast<std::size_t>(Index)).Show(false);
  }
  for (const PowerRow* powerRow : {&rowOn, &rowOff}) {
    powerRow->ctlPower(Index).SetImages(addin::frmImages().get_ImageList());
    powerRow->txtPulseTime(Index).ShowStored();
  }
  LoadDeviceCommands(Index);
}

/// A pulse time shows only through its command, so that it is hidden here but never shown.
void TabDisplayOptions::ShowDeviceFields(std::int16_t Index, bool bShow) {
  lblDescriptionTag(Index).setVisible(bShow);
  lblDescription(Index).setVisible(bShow);
  lblIOAssignmentTag(Index).setVisible(bShow);
  lblIOAssignment(Index).setVisible(bShow);
  for (const PowerRow* powerRow : {&rowOn, &rowOff}) {
    powerRow->lblPower(Index).setVisible(bShow);
    powerRow->lblCommand(Index).setVisible(bShow);
    powerRow->ctlPower(Index).setVisible(bShow);
    if (!bShow) ShowPulseTime(*powerRow, Index, false);
  }
  frameInfo.at(static_cast<std::size_t>(Index)).Show(!bShow);
}

void TabDisplayOptions::ShowPulseTime(const PowerRow& powerRow, std::int16_t Index, bool bShow) {
  powerRow.lblFor(Index).setVisible(bShow);
  powerRow.txtPulseTime(Index).setVisible(bShow);
  powerRow.lblSeconds(Index).setVisible(bShow);
}

void TabDisplayOptions::ShowDeviceLabels(std::int16_t Index, std::int16_t iDeviceID) {
  const auto oDevice = FindDevice(iDeviceID);
  if (!oDevice) return;
  lblDescription(Index).setCaption(oDevice->get_Description());
  lblDescription(Index).setToolTip(oDevice->get_Description());
  lblIOAssignment(Index).setCaption(oDevice->get_IOAssignment());
}

void TabDisplayOptions::LoadDeviceCommands(std::int16_t Index) {
  if (!IsInSystem(get_DeviceID(Index))) return;
  const auto oDevice = FindDevice(get_DeviceID(Index));
  if (!oDevice) return;
  LoadStandardCommand(rowOn.ctlPower(Index), *oDevice);
  LoadStandardCommand(rowOff.ctlPower(Index), *oDevice);
}

void TabDisplayOptions::chkInclude_Click(std::int16_t Index) {
  const bool bIncluded = chkInclude(Index).isChecked();
  cmdChoose(Index).setVisible(bIncluded);
  ShowDeviceFields(Index, bIncluded && IsInSystem(get_DeviceID(Index)));
  if (bIncluded) return;
  frameInfo.at(static_cast<std::size_t>(Index)).Show(false);
  RemoveAuxiliaryDevice(Index);
}

/// A removal that fails is told to nobody, and the page has no device then all the same. The pulse
/// times stay until the step is left.
void TabDisplayOptions::RemoveAuxiliaryDevice(std::int16_t Index) {
  if (!IsInSystem(get_DeviceID(Index))) return;
  static_cast<void>(gDocument().RemoveDevice(get_DeviceID(Index), host::removalOfDevice));
  put_DeviceID(Index, 0);
}

void TabDisplayOptions::cmdChoose_Click(std::int16_t Index) {
  const std::int16_t iResult = AskForDevice(Index);
  if (iResult == host::deviceDialogNone) {
    ShowDeviceFields(Index, false);
  } else if (iResult != host::deviceDialogUnchanged) {
    ShowDeviceLabels(Index, iResult);
    put_DeviceID(Index, iResult);
    gAddIn().SetDeviceLabel(iResult, PageOf(Index).strLabel);
    put_PulseTime(rowOn, Index, 0);
    put_PulseTime(rowOff, Index, 0);
    ShowDeviceFields(Index, true);
  }
  LoadDeviceCommands(Index);
}

std::int16_t TabDisplayOptions::AskForDevice(std::int16_t Index) const {
  host::DeviceDialogArguments arguments;
  arguments.iParentID = gDocument().get_ControlSystem()->get_ID();
  arguments.lDialogContext = gDocument().get_Reports()->get_DialogContext();
  arguments.iDeviceID = get_DeviceID(Index);
  arguments.strName = gAddIn().GetAuxiliaryDeviceName(PageOf(Index).eDeviceType);
  arguments.strTitle = "Select a Device";
  arguments.strCategory6 = PageOf(Index).strCategory;
  arguments.bFlag11 = true;
  return gAddIn().ShowAddReplaceDeviceDialog(arguments);
}

void TabDisplayOptions::CommandChanged(const PowerRow& powerRow, std::int16_t Index) {
  const auto oDevice = FindDevice(get_DeviceID(Index));
  if (!oDevice || !StoreStandardCommand(powerRow.ctlPower(Index), *oDevice)) return;
  const auto oCommand = oDevice->FindCommand(powerRow.ctlPower(Index).get_SelectedCommand(),
                                             host::directionInput, host::signalDigital);
  ShowPulseTime(powerRow, Index, oCommand && oCommand->get_CommandType() == host::commandPulse);
}

void TabDisplayOptions::OtherTabClicked() {
  validateActiveControl();
  SetTabStops(false);
  GiveUpHiddenPulseTimes();
}

bool TabDisplayOptions::iTab_SaveData() {
  m_bSaving = true;
  validateActiveControl();
  if (isShown()) GiveUpHiddenPulseTimes();
  return false;
}

/// The times of commands that aren't held, and of devices that aren't there.
void TabDisplayOptions::GiveUpHiddenPulseTimes() {
  for (const std::int16_t Index : {iScreen, iLift}) {
    for (const PowerRow* powerRow : {&rowOn, &rowOff}) {
      if (powerRow->txtPulseTime(Index).isVisible()) continue;
      if (get_PulseTime(*powerRow, Index) != 0) gDocument().MarkChanged();
      put_PulseTime(*powerRow, Index, 0);
    }
  }
}

std::int16_t TabDisplayOptions::get_DeviceID(std::int16_t Index) const {
  return Index == iScreen ? gAddIn().get_ScreenDeviceID() : gAddIn().get_LiftDeviceID();
}

void TabDisplayOptions::put_DeviceID(std::int16_t Index, std::int16_t iDeviceID) {
  if (Index == iScreen) {
    gAddIn().put_ScreenDeviceID(iDeviceID);
  } else {
    gAddIn().put_LiftDeviceID(iDeviceID);
  }
}

float TabDisplayOptions::get_PulseTime(const PowerRow& powerRow, std::int16_t Index) const {
  return powerRow.bOn ? gAddIn().get_PowerOnPulseTime(Index)
                      : gAddIn().get_PowerOffPulseTime(Index);
}

void TabDisplayOptions::put_PulseTime(const PowerRow& powerRow, std::int16_t Index,
                                      float sngSeconds) {
  if (powerRow.bOn) {
    gAddIn().put_PowerOnPulseTime(Index, sngSeconds);
  } else {
    gAddIn().put_PowerOffPulseTime(Index, sngSeconds);
  }
  powerRow.txtPulseTime(Index).ShowStored();
}

/// The pages stand side by side, each as wide as the other.
void TabDisplayOptions::LayOut() {
  using namespace forms;
  constexpr Twips lGap = 90;
  const Twips lBanner = layOut(pageArea, {rest(lblBanner)});
  const Twips lTop = pageArea.top + lBanner + lGap;
  const Twips lWidth = (pageArea.width - lGap) / 2;
  for (const std::int16_t Index : {iScreen, iLift}) {
    const Twips lLeft = pageArea.left + Index * (lWidth + lGap);
    layOut({lLeft, lTop, lWidth, pageArea.height}, {PlacePage(Index)});
    frameInfo.at(static_cast<std::size_t>(Index)).PlaceBorder();
  }
}

forms::Piece TabDisplayOptions::PlacePage(std::int16_t Index) {
  using namespace forms;
  constexpr Twips lDescription = 780;
  constexpr Twips lLine = 195;
  return box(
      frameDevice(Index),
      {
          row({item(ctlImage(Index), sizeOfPicture),
               column({rest(chkInclude(Index)), item(cmdChoose(Index))})}),
          either({
              column({
                  item(lblDescriptionTag(Index)),
                  rest(lblDescription(Index), lDescription),
                  row({item(lblIOAssignmentTag(Index)), rest(lblIOAssignment(Index), lLine)}),
                  PlaceRow(rowOn, Index),
                  PlaceRow(rowOff, Index),
              }),
              frameInfo.at(static_cast<std::size_t>(Index)).Place(),
          }),
      });
}

forms::Piece TabDisplayOptions::PlaceRow(const PowerRow& powerRow, std::int16_t Index) {
  using namespace forms;
  return column({
      names(powerRow.lblPower(Index), powerRow.ctlPower(Index)),
      indented({
          names(powerRow.lblCommand(Index), powerRow.ctlPower(Index)),
          rest(powerRow.ctlPower(Index)),
          row({item(powerRow.lblFor(Index)), wide(powerRow.txtPulseTime(Index), lNumberBoxWidth),
               item(powerRow.lblSeconds(Index))}),
      }),
  });
}

}  // namespace steps
