#include "steps/TabRoomOptions.h"

#include <utility>

#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/modHTMLHelp.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"
#include "forms/Rows.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::gOwnerForm;
using addin::IsInSystem;

constexpr std::int16_t iKestrum = 0;  // the indexes of the inclusions
constexpr std::int16_t iFenlet = 1;
constexpr std::int32_t lPasswordLength = 20;
constexpr std::int32_t lTimeoutLength = 3;
constexpr std::int32_t lLongestTimeout = 546;  // minutes; one more would not fit the setting
constexpr float sngSecondsPerMinute = 60;

std::int16_t HandleOf(std::int16_t iDeviceID) {
  return gDocument().get_Devices()->Item(iDeviceID)->get_DeviceHandle();
}

float StoredMinutes() {
  return static_cast<float>(gAddIn().get_MotionSensorTimeout()) / sngSecondsPerMinute;
}

}  // namespace

TabRoomOptions::TabRoomOptions(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Room Options", host::helpRoomOptions) {
  MakeBanner(lblBanner);
  SetTabStops(false);
  lblKestrum.setLink(true);
  txtFenletPassword.setMaxLength(lPasswordLength);
  txtFenletPassword.setSelectsAllOnFocus(true);
  txtPowerOffTimeout.setMaxLength(lTimeoutLength);
  txtPowerOffTimeout.setAccessibleName("Minutes without motion");
  txtPowerOffTimeout.Hold({
      .Get = StoredMinutes,
      .Put =
          [](float sngMinutes) {
            gAddIn().put_MotionSensorTimeout(forms::toInt16(sngMinutes * sngSecondsPerMinute));
          },
      .range = {{.strLabel = "The timeout value for the occupancy sensor",
                 .iMax = lLongestTimeout,
                 .pSaving = &m_bSaving}},
      .Stored = ApplyTimeout,
  });
  ConnectEvents();
  LayOut();
}

void TabRoomOptions::ConnectEvents() {
  chkInclude.each([this](std::int16_t Index, forms::CheckBox& box) {
    box.click.connect([this, Index] { chkInclude_Click(Index); });
  });
  chkEnablePwd.click.connect([this] { chkEnablePwd_Click(); });
  chkOccupancy.click.connect([this] { chkOccupancy_Click(); });
  chkPowerTimeout.click.connect([this] { chkPowerTimeout_Click(); });
  cmdAdvanced.click.connect([this] { cmdAdvanced_Click(); });
  lblKestrum.click.connect([this] { lblKestrum_Click(); });
  txtFenletPassword.validate.connect([this](bool&) { txtFenletPassword_Validate(); });
  OnEnter(txtFenletPassword, [this] { txtFenletPassword_Validate(); });
  offer("SetData", [this] { SetData(); });
  offer<bool&>("BeforeTabChange", [this](bool& bCancel) { BeforeTabChange(bCancel); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
  KeepsUnsaved([this] { return GetUnsaved(); },
               [this](const UnsavedTexts& colTexts) { ResumeUnsaved(colTexts); });
}

void TabRoomOptions::SetTabStops(bool bValue) {
  chkInclude(iKestrum).setTabStop(bValue);
  chkInclude(iFenlet).setTabStop(bValue);
}

void TabRoomOptions::iTab_TabClicked() {
  SetTabStops(true);
  m_strTakenTimeout.reset();
  UntickMissingPassword();
}

bool TabRoomOptions::SetData() {
  m_bSaving = false;
  m_strTakenTimeout.reset();
  ctlImage(iKestrum).put_Picture(LargePicture(host::pictureKestrum));
  ctlImage(iFenlet).put_Picture(LargePicture(host::pictureFenlet));
  chkOccupancy.setEnabled(true);
  if (!addin::IsDocumentSet()) return false;
  const forms::Guard loading(m_bLoading);
  SetKestrumData();
  SetOccupancyData();
  SetFenletData();
  return false;
}

void TabRoomOptions::SetKestrumData() {
  const bool bIncluded = IsInSystem(gAddIn().get_KestrumID());
  chkInclude(iKestrum).setChecked(bIncluded);
  cmdAdvanced.setEnabled(bIncluded);
  ShowIPID();
}

void TabRoomOptions::SetOccupancyData() {
  const bool bIncluded = IsInSystem(gAddIn().get_OccupancySensorID());
  const bool bTimeout = bIncluded && gAddIn().get_MotionSensorTimeout() >= 1;
  chkOccupancy.setChecked(bIncluded);
  ShowPort();
  EnableOccupancyOptions(bIncluded);
  chkPowerTimeout.setChecked(bTimeout);
  EnableTimeout(bTimeout);
  if (bTimeout) txtPowerOffTimeout.ShowStored();
}

void TabRoomOptions::SetFenletData() {
  const bool bIncluded = IsInSystem(gAddIn().get_FenletID());
  chkInclude(iFenlet).setChecked(bIncluded);
  chkEnablePwd.setEnabled(bIncluded);
  const bool bPassword = !gAddIn().get_FenletPassword().empty();
  chkEnablePwd.setChecked(bPassword);
  EnablePassword(bPassword);
  txtFenletPassword.setText(gAddIn().get_FenletPassword());
}

/// Empty also after an interface that could not be added.
void TabRoomOptions::ShowIPID() {
  const std::int16_t iDeviceID = gAddIn().get_KestrumID();
  lblIPID.setCaption(IsInSystem(iDeviceID)
                         ? "IP-ID: " + gOwnerForm().GetDeviceIPID(HandleOf(iDeviceID))
                         : std::string());
}

/// Empty also after a sensor that could not be added.
void TabRoomOptions::ShowPort() {
  const std::int16_t iDeviceID = gAddIn().get_OccupancySensorID();
  lblPort.setCaption(IsInSystem(iDeviceID)
                         ? "Port: " + gOwnerForm().GetDevicePort(HandleOf(iDeviceID))
                         : std::string());
}

void TabRoomOptions::EnablePassword(bool bEnabled) {
  txtFenletPassword.setEnabled(bEnabled);
  txtFenletPassword.setBackColor(bEnabled ? forms::colors::windowBackground
                                          : forms::colors::buttonFace);
}

void TabRoomOptions::EnableOccupancyOptions(bool bEnabled) {
  chkPowerTimeout.setEnabled(bEnabled);
  lblMinutes.setEnabled(bEnabled);
}

void TabRoomOptions::EnableTimeout(bool bEnabled) {
  txtPowerOffTimeout.setEnabled(bEnabled);
  if (!bEnabled) txtPowerOffTimeout.setText("");
}

void TabRoomOptions::chkInclude_Click(std::int16_t Index) {
  if (m_bLoading) return;
  const bool bInclude = chkInclude(Index).isChecked();
  if (Index == iKestrum) {
    IncludeKestrum(bInclude);
  } else {
    IncludeFenlet(bInclude);
  }
}

/// The motion detector goes with the monitoring interface, and comes back with it in the same
/// visit.
void TabRoomOptions::IncludeKestrum(bool bInclude) {
  cmdAdvanced.setEnabled(bInclude);
  if (bInclude) {
    gAddIn().AddKestrum();
    if (m_strTakenTimeout && IsInSystem(gAddIn().get_KestrumID())) chkOccupancy.setChecked(true);
  } else {
    const bool bSensor = IsInSystem(gAddIn().get_OccupancySensorID());
    gAddIn().RemoveKestrum();
    if (bSensor && !IsInSystem(gAddIn().get_OccupancySensorID())) ShowSensorTakenAlong();
  }
  ShowIPID();
}

void TabRoomOptions::ShowSensorTakenAlong() {
  m_strTakenTimeout = txtPowerOffTimeout.text();
  const forms::Guard loading(m_bLoading);
  chkOccupancy.setChecked(false);
  ShowWithoutSensor();
}

void TabRoomOptions::ShowWithoutSensor() {
  lblPort.setCaption("");
  chkPowerTimeout.setChecked(false);
  EnableOccupancyOptions(false);
  EnableTimeout(false);
}

void TabRoomOptions::RestoreTimeout() {
  const std::string strTimeout = std::exchange(m_strTakenTimeout, {}).value_or("");
  if (strTimeout.empty()) return;
  chkPowerTimeout.setChecked(true);
  txtPowerOffTimeout.setText(strTimeout);
}

void TabRoomOptions::IncludeFenlet(bool bInclude) {
  if (bInclude) {
    gAddIn().AddFenlet();
    UntickMissingPassword();
  } else {
    gAddIn().RemoveFenlet();
  }
  chkEnablePwd.setEnabled(bInclude);
  if (chkEnablePwd.isChecked()) EnablePassword(bInclude);
}

void TabRoomOptions::UntickMissingPassword() {
  if (!gAddIn().get_FenletPassword().empty()) return;
  const forms::Guard loading(m_bLoading);
  chkEnablePwd.setChecked(false);
  EnablePassword(false);
}

void TabRoomOptions::chkOccupancy_Click() {
  if (m_bLoading) return;
  if (chkOccupancy.isChecked()) {
    gAddIn().AddOccupancySensor();
    ShowPort();
    EnableOccupancyOptions(true);
    RestoreTimeout();
    return;
  }
  gAddIn().RemoveOccupancySensor();
  ShowWithoutSensor();  // also where the sensor could not be removed
}

/// The next validation writes the value.
void TabRoomOptions::chkPowerTimeout_Click() {
  if (!m_bLoading) gDocument().MarkChanged();
  EnableTimeout(chkPowerTimeout.isChecked());
}

/// The password itself changes at its next validation.
void TabRoomOptions::chkEnablePwd_Click() {
  if (m_bLoading) return;
  gDocument().MarkChangedButProgram();
  EnablePassword(chkEnablePwd.isChecked());
}

void TabRoomOptions::txtFenletPassword_Validate() {
  const bool bUsed = chkInclude(iFenlet).isChecked() && chkEnablePwd.isChecked();
  const std::string strPassword = bUsed ? txtFenletPassword.text() : std::string();
  if (gAddIn().get_FenletPassword() != strPassword) {
    gAddIn().put_FenletPassword(strPassword);
    gDocument().MarkChangedButProgram();
  }
  txtFenletPassword.setText(gAddIn().get_FenletPassword());
}

/// A value that the sensor does not take is told to nobody.
void TabRoomOptions::ApplyTimeout() {
  const auto oDevice = gDocument().get_Devices()->ItemByID(gAddIn().get_OccupancySensorID());
  if (!oDevice) return;
  if (const auto oTimeout = oDevice->GetProperty("Timeout")) {
    static_cast<void>(oTimeout->SetValue(forms::decimal(gAddIn().get_MotionSensorTimeout())));
  }
}

void TabRoomOptions::cmdAdvanced_Click() {
  std::vector<std::string> colTabs;
  if (HandleOf(gAddIn().get_KestrumID()) >= 1) colTabs.push_back(host::progIDPageIOAssignment);
  gOwnerForm().ShowControlledDeviceProperties(gAddIn().get_KestrumID(), colTabs);
}

void TabRoomOptions::lblKestrum_Click() {
  common::ShowHelpTopic(gAddIn().GetActiveWindowHandle(), host::helpKestrumSetup);
}

void TabRoomOptions::OtherTabClicked() {
  SetTabStops(false);
  ValidateBoxes();
}

/// The boxes that are written when the page is left.
TabRoomOptions::UnsavedTexts TabRoomOptions::GetUnsaved() const {
  if (!isShown()) return {};
  return {Tick(chkEnablePwd), txtFenletPassword.text(), Tick(chkPowerTimeout),
          txtPowerOffTimeout.text()};
}

void TabRoomOptions::ResumeUnsaved(const UnsavedTexts& colTexts) {
  if (colTexts.size() != 4) return;
  const forms::Guard loading(m_bLoading);
  PutTick(chkEnablePwd, colTexts[0]);
  EnablePassword(chkEnablePwd.isChecked() && chkInclude(iFenlet).isChecked());
  txtFenletPassword.setText(colTexts[1]);
  PutTick(chkPowerTimeout, colTexts[2]);
  txtPowerOffTimeout.setText(colTexts[3]);
}

void TabRoomOptions::ValidateBoxes() {
  txtFenletPassword_Validate();
  txtPowerOffTimeout.Store();
}

/// What the page shows is saved as it is when the page is left, so that a box that was unticked
/// takes its value with it.
bool TabRoomOptions::iTab_SaveData() {
  m_bSaving = true;
  validateActiveControl();
  if (isShown()) ValidateBoxes();
  return false;
}

void TabRoomOptions::LayOut() {
  using namespace forms;
  constexpr Twips lPasswordWidth = 2400;
  txtFenletPassword.nameBy(Label4);
  layOut(pageArea,
         {
             rest(lblBanner),
             rest(Label2),
             box(fraKestrum, {row({
                                 item(ctlImage(iKestrum), sizeOfPicture),
                                 column({
                                     item(chkInclude(iKestrum)),
                                     rest(Label1),
                                     row({rest(lblIPID), item(cmdAdvanced), item(lblKestrum)}),
                                 }),
                             })}),
             box(fraFenlet,
                 {
                     row({
                         item(ctlImage(iFenlet), sizeOfPicture),
                         column({item(chkInclude(iFenlet)), rest(Label3)}),
                     }),
                     indented({
                         item(chkEnablePwd),
                         rest(Label4),
                         row({wide(txtFenletPassword, lPasswordWidth), item(Label5)}),
                     }),
                 }),
             box(fraOccupancySensing,
                 {
                     row({item(chkOccupancy), rest(lblPort)}),
                     indented({
                         row({item(chkPowerTimeout), wide(txtPowerOffTimeout, lNumberBoxWidth),
                              item(lblMinutes)}),
                     }),
                 }),
         });
}

}  // namespace steps
