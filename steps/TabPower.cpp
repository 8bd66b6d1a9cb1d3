#include "steps/TabPower.h"

#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"
#include "forms/Rows.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::IsInSystem;
using host::powerDiscrete;
using host::powerNone;
using host::powerSensing;

constexpr std::int16_t iOnCommand = addin::pdOn;  // the indexes of the selectors
constexpr std::int16_t iOffCommand = addin::pdOff;
constexpr std::int16_t iSecondOffCommand = 3;
constexpr std::int32_t lDelayLength = 3;

constexpr const char* strDiscreteText =
    "This device provides discrete commands for \"Power On\" and \"Power Off\".";
constexpr const char* strSensingText =
    "This device only has a \"Power\" command that toggles the power on and off, so use a power "
    "sensor attached to a digital input";
constexpr const char* strNoSensingText =
    "This option is not available since the currently selected device does not have a \"Power\" "
    "command to toggle the power on and off.";
constexpr const char* strNoneText =
    "This device is turned on and off manually by the user.  Or this device is assumed always on.";

}  // namespace

TabPower::TabPower(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Power Control", host::helpPowerControlTab) {
  MakeBanner(lblBanner);
  SetTabStops(false);
  lblPower(powerNone).setCaption(strNoneText);
  lblPower(powerDiscrete).setCaption(strDiscreteText);
  lblPower(powerSensing).setCaption(strNoSensingText);
  fraAll.setBorder(false);
  lblDiagram.setLink(true);
  txtSecondOff.setMaxLength(lDelayLength);
  txtSecondOff.Hold({
      .Get = [] { return gAddIn().get_iSecondPowerOff(); },
      .Put = [](float sng) { gAddIn().put_iSecondPowerOff(forms::toInt16(sng)); },
      .bStoredByEnter = true,
  });

  ConnectEvents();
  LayOut();
}

void TabPower::ConnectEvents() {
  optPower.each([this](std::int16_t Index, forms::OptionButton& option) {
    option.click.connect([this, Index] { optPower_Click(Index); });
  });
  lblPower.each([this](std::int16_t Index, forms::Label& label) {
    label.click.connect([this, Index] { lblPower_Click(Index); });
  });
  ctlCommands.each([this](std::int16_t Index, host::DeviceCommands& ctlSelector) {
    ctlSelector.CommandChanged.connect([this, Index] { ctlCommands_CommandChanged(Index); });
  });
  chkSecondOff.click.connect([this] { chkSecondOff_Click(); });
  lblDiagram.click.connect([this] { lblDiagram_Click(); });
  offer("SetData", [this] { SetData(); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
}

bool TabPower::SetData() {
  const forms::ImageList& images = addin::frmImages().get_ImageList();
  ctlCommands.each(
      [&](std::int16_t, host::DeviceCommands& selector) { selector.SetImages(images); });
  // Leaving the page reads the box, which must not hold what another system left in it.
  txtSecondOff.ShowStored();
  return false;
}

/// The box is read whatever the page shows, so that an emptied one stores 0.
void TabPower::OtherTabClicked() {
  SetTabStops(false);
  txtSecondOff.Store();
}

void TabPower::SetTabStops(bool bValue) {
  optPower.each([&](std::int16_t, forms::OptionButton& option) { option.setTabStop(bValue); });
  ctlCommands(iOnCommand).setTabStop(bValue);
  ctlCommands(iOffCommand).setTabStop(bValue);
  ctlCommands(iSecondOffCommand).setTabStop(bValue && m_bSecondOff);
}

void TabPower::iTab_TabClicked() {
  SetTabStops(true);
  const auto oDevice = FindDisplay();
  fraAll.setVisible(oDevice != nullptr);
  frameInfo.Show(oDevice == nullptr);
  m_bSecondOff = oDevice && oDevice->get_SecondOffCapable();
  // The tab stops were set by the flag of the last device.
  if (!m_bSecondOff) ctlCommands(iSecondOffCommand).setTabStop(false);
  if (oDevice) {
    chkSecondOff.setVisible(m_bSecondOff);
    ctlCommands(iSecondOffCommand).setVisible(m_bSecondOff);
    lblSecondOff(0).setVisible(m_bSecondOff);
    txtSecondOff.setVisible(m_bSecondOff);
    lblSecondOff(1).setVisible(m_bSecondOff);
    optPower(oDevice->get_PowerControlType()).setChosen(true);
  }
  ShowPowerCommands();
  UpdatePowerSensing();
}

void TabPower::UpdatePowerSensing() {
  const auto oDevice = FindDisplay();
  if (!oDevice || !IsInSystem(oDevice->get_ID())) return;
  const bool bToggles = oDevice->GetCommandList(host::directionInput, host::signalDigital)
                            ->Exists(host::commandPowerToggle);
  lblPower(powerSensing).setCaption(bToggles ? strSensingText : strNoSensingText);
  optPower(powerSensing).setEnabled(bToggles);
  if (!bToggles && optPower(powerSensing).isChosen()) optPower(powerNone).setChosen(true);
}

void TabPower::ShowPowerCommands() {
  const bool bDiscrete = optPower(powerDiscrete).isChosen();
  if (bDiscrete) {
    LoadPowerCommands();
    if (m_bSecondOff) {
      chkSecondOff.setEnabled(!ctlCommands(iOffCommand).get_SelectedCommand().empty());
    }
  } else {
    EmptyPowerCommands();
  }
  for (const std::int16_t i : {iOnCommand, iOffCommand}) {
    lblCommands(i).setEnabled(bDiscrete);
    ctlCommands(i).setEnabled(bDiscrete);
  }
  EnableSecondOff(chkSecondOff.isChecked() && m_bSecondOff && bDiscrete);
}

/// Only what is shown: the device and the settings keep theirs for the return to discrete control.
void TabPower::EmptyPowerCommands() {
  ctlCommands(iOnCommand).put_Text("");
  ctlCommands(iOffCommand).put_Text("");
  if (!m_bSecondOff) return;
  ctlCommands(iSecondOffCommand).put_Text("");
  txtSecondOff.setText("");
  const forms::Guard loading(m_bLoading);
  chkSecondOff.setChecked(false);
  chkSecondOff.setEnabled(false);
}

void TabPower::EnableSecondOff(bool bEnabled) {
  ctlCommands(iSecondOffCommand).setEnabled(bEnabled);
  lblSecondOff(0).setEnabled(bEnabled);
  txtSecondOff.setEnabled(bEnabled);
  lblSecondOff(1).setEnabled(bEnabled);
}

void TabPower::LoadPowerCommands() {
  const forms::Guard loading(m_bLoading);
  const auto oDevice = FindDisplay();
  if (!oDevice) return;
  const auto Load = [&](std::int16_t Index, const std::string& strSelected) {
    ctlCommands(Index).LoadCommands(*oDevice, strSelected, host::commandsForPower);
  };
  Load(iOnCommand, oDevice->GetCommandName(forms::decimal(host::scOn)));
  Load(iOffCommand, oDevice->GetCommandName(forms::decimal(host::scOff)));
  if (!m_bSecondOff) return;
  chkSecondOff.setValue(gAddIn().get_bSecondPowerOff());
  Load(iSecondOffCommand, gAddIn().get_sSecondPowerOff());
  txtSecondOff.ShowStored();
}

void TabPower::ctlCommands_CommandChanged(std::int16_t Index) {
  if (m_bLoading) return;
  WarnOfCommands(Index);
  if (Index == iOffCommand && m_bSecondOff) {
    const bool bAssigned = !ctlCommands(iOffCommand).get_SelectedCommand().empty();
    if (!bAssigned) chkSecondOff.setChecked(false);
    chkSecondOff.setEnabled(bAssigned);
  }
  if (Index >= iSecondOffCommand) {
    gAddIn().put_sSecondPowerOff(ctlCommands(iSecondOffCommand).get_SelectedCommand());
    gDocument().MarkChanged();
    txtSecondOff.setFocus();
  } else {
    StoreCommand(Index);
  }
}

/// The warnings inform and refuse nothing. Two selectors without a command count as identical.
void TabPower::WarnOfCommands(std::int16_t Index) const {
  if (forms::equalsIgnoringCase(ctlCommands(Index).get_SelectedCommand(),
                                host::commandPowerToggle)) {
    Inform(
        "Generally the command \"Power\" toggles the power on and off.\r\n\r\n"
        "Since this normally is not a discrete command verify it is discrete before assigning it "
        "here.");
  }
  if (forms::equalsIgnoringCase(ctlCommands(iOnCommand).get_SelectedCommand(),
                                ctlCommands(iOffCommand).get_SelectedCommand())) {
    Inform(
        "You have selected identical commands for power on and power off.\r\n\r\n"
        "Since these are not discrete commands this device will get out of sync with the other "
        "devices.\r\n\r\n"
        "Please choose discrete power commands to continue or select another power control "
        "method.");
  }
}

void TabPower::StoreCommand(std::int16_t Index) {
  const auto oDevice = FindDisplay();
  if (!oDevice || !IsInSystem(oDevice->get_ID())) return;
  bool bChanged = false;
  oDevice->SetCommandName(forms::decimal(gAddIn().GetStandardCommandIDForPowerControl(Index)),
                          ctlCommands(Index).get_SelectedCommand(), bChanged);
  if (bChanged) gDocument().MarkChanged();
}

void TabPower::optPower_Click(std::int16_t Index) {
  ShowPowerCommands();
  const auto oDevice = FindDisplay();
  if (!oDevice || !IsInSystem(oDevice->get_ID()) || oDevice->get_PowerControlType() == Index) {
    return;
  }
  oDevice->put_PowerControlType(Index);
  gDocument().MarkChanged();
}

void TabPower::lblPower_Click(std::int16_t Index) {
  if (!optPower(Index).isEnabled()) return;
  optPower(Index).setChosen(true);
  optPower(Index).setFocus();
}

void TabPower::chkSecondOff_Click() {
  if (m_bLoading) return;
  txtSecondOff.setText("");
  if (chkSecondOff.isChecked()) {
    EnableSecondOff(true);
    ctlCommands(iSecondOffCommand).SelectCommand(ctlCommands(iOffCommand).get_SelectedCommand());
    txtSecondOff.setFocus();
  } else {
    ctlCommands(iSecondOffCommand).SelectCommand("");
    EnableSecondOff(false);
  }
  gAddIn().put_sSecondPowerOff(ctlCommands(iSecondOffCommand).get_SelectedCommand());
  gAddIn().put_bSecondPowerOff(chkSecondOff.value());
  gDocument().MarkChanged();
}

void TabPower::lblDiagram_Click() {
  gAddIn().put_iPreviewImage(addin::previewWiring);
  gAddIn().IAddInContract_ShowPreview();
}

void TabPower::LayOut() {
  using namespace forms;
  const auto Mode = [this](std::int16_t Index, Piece recommendation) {
    return column({row({item(optPower(Index)), std::move(recommendation)}),
                   indented({rest(lblPower(Index), 390)})});
  };
  txtSecondOff.nameBy(chkSecondOff);
  layOut(pageArea,
         {
             rest(lblBanner),
             either({
                 box(fraAll,
                     {
                         item(Label1),
                         rest(lblInstructions),
                         gap(30),
                         Mode(powerDiscrete, item(lblRecommended)),
                         indented({
                             columns({
                                 {names(lblCommands(iOnCommand), ctlCommands(iOnCommand)),
                                  rest(ctlCommands(iOnCommand))},
                                 {names(lblCommands(iOffCommand), ctlCommands(iOffCommand)),
                                  rest(ctlCommands(iOffCommand))},
                             }),
                             names(chkSecondOff, ctlCommands(iSecondOffCommand)),
                             indented({
                                 row({rest(ctlCommands(iSecondOffCommand)),
                                      names(lblSecondOff(0), txtSecondOff),
                                      wide(txtSecondOff, lNumberBoxWidth),
                                      names(lblSecondOff(1), txtSecondOff)}),
                             }),
                         }),
                         gap(60),
                         Mode(powerSensing, item(lblDiagram)),
                         gap(60),
                         Mode(powerNone, item(lblNotRecommended)),
                     }),
                 frameInfo.Place(),
             }),
         });
  frameInfo.PlaceBorder();
}

}  // namespace steps
