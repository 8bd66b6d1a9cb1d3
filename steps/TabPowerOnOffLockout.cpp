#include "steps/TabPowerOnOffLockout.h"

#include <algorithm>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"
#include "forms/Rows.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::contactContinue;
using addin::contactPowerOff;
using addin::contactUnused;
using addin::gAddIn;
using addin::gDocument;

constexpr std::int16_t iOnTime = 1;  // the indexes of the times
constexpr std::int16_t iOffTime = 2;
constexpr std::int32_t lTimeLength = 3;

constexpr const char* strNoPowerText =
    "Before configuring Power Lockout configure Power Control for the Display Device on the "
    "\"Power Control\" step.";

/// The button of an option that is in use. A stored number above those that exist counts as the
/// last one.
std::int16_t ButtonOf(std::int16_t iOption) {
  return std::min<std::int16_t>(iOption, contactContinue);
}

}  // namespace

TabPowerOnOffLockout::TabPowerOnOffLockout(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Power On/Off Lockout",
                 host::helpPowerOnOffLockout) {
  MakeBanner(lblBanner);
  HoldTimes();
  frameInfo.SetText(strNoPowerText);  // the longer one, which its place is made for
  ConnectEvents();
  LayOut();
}

/// Three characters are the upper bound, and the setting keeps the absolute value.
void TabPowerOnOffLockout::HoldTimes() {
  txtPowerLockoutTime.each([](std::int16_t, NumberBox& box) { box.setMaxLength(lTimeLength); });
  txtPowerLockoutTime(iOnTime).Hold({
      .Get = [] { return gAddIn().get_PowerOnLockoutTime(); },
      .Put = [](float sng) { gAddIn().put_PowerOnLockoutTime(forms::toInt16(sng)); },
      .bStoredByEnter = true,
  });
  txtPowerLockoutTime(iOffTime).Hold({
      .Get = [] { return gAddIn().get_PowerOffLockoutTime(); },
      .Put = [](float sng) { gAddIn().put_PowerOffLockoutTime(forms::toInt16(sng)); },
      .bStoredByEnter = true,
  });
}

void TabPowerOnOffLockout::ConnectEvents() {
  chkContact.click.connect([this] { chkContact_Click(); });
  optContact.each([this](std::int16_t, forms::OptionButton& option) {
    option.click.connect([this] { optContact_Click(); });
  });
  offer("SetData", [this] { SetData(); });
  offer<bool&>("BeforeTabChange", [this](bool& bCancel) { BeforeTabChange(bCancel); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
}

bool TabPowerOnOffLockout::SetData() {
  ctlImage(0).put_Picture(LargePicture(host::pictureLockout));
  ctlImage(1).put_Picture(LargePicture(host::pictureContact));
  txtPowerLockoutTime(iOnTime).ShowStored();
  txtPowerLockoutTime(iOffTime).ShowStored();

  const forms::Guard loading(m_bLoading);
  const std::int16_t iOption = gAddIn().get_PowerContactClosureOption();
  const bool bUsed = iOption > contactUnused;
  chkContact.setChecked(bUsed);
  EnableContactOptions(bUsed);
  if (bUsed) optContact(ButtonOf(iOption)).setChosen(true);
  return false;
}

void TabPowerOnOffLockout::iTab_TabClicked() {
  const auto oDevice = FindDisplay();
  const bool bControlled = oDevice && oDevice->get_PowerControlType() != host::powerNone;
  frameInfo.SetText(oDevice ? strNoPowerText : HintToAddDisplay("Power Lockout"));
  frameDevice.setVisible(bControlled);
  fraContact.setVisible(bControlled);
  frameInfo.Show(!bControlled);
}

/// A time that is typed still when the page is left is stored, whatever moved the focus.
void TabPowerOnOffLockout::OtherTabClicked() {
  txtPowerLockoutTime(iOffTime).Store();
  txtPowerLockoutTime(iOnTime).Store();
}

bool TabPowerOnOffLockout::iTab_SaveData() {
  validateActiveControl();
  return false;
}

void TabPowerOnOffLockout::EnableContactOptions(bool bEnabled) {
  lblContact.setEnabled(bEnabled);
  optContact(contactPowerOff).setEnabled(bEnabled);
  optContact(contactContinue).setEnabled(bEnabled);
}

void TabPowerOnOffLockout::chkContact_Click() {
  if (m_bLoading) return;
  const bool bChecked = chkContact.isChecked();
  EnableContactOptions(bChecked);
  if (bChecked) {
    optContact(contactPowerOff).setChosen(true);
  } else if (const auto iOption = gAddIn().get_PowerContactClosureOption();
             iOption > contactUnused) {
    optContact(ButtonOf(iOption)).setChosen(false);
  }
  SaveContactOption();
}

void TabPowerOnOffLockout::optContact_Click() {
  if (!m_bLoading) SaveContactOption();
}

void TabPowerOnOffLockout::SaveContactOption() {
  std::int16_t iOption = contactUnused;
  if (chkContact.isChecked()) {
    iOption = optContact(contactPowerOff).isChosen() ? contactPowerOff : contactContinue;
  }
  if (iOption == gAddIn().get_PowerContactClosureOption()) return;
  gAddIn().put_PowerContactClosureOption(iOption);
  gDocument().MarkChanged();
}

void TabPowerOnOffLockout::LayOut() {
  using namespace forms;
  layOut(pageArea,
         {
             rest(lblBanner),
             either({
                 column({
                     gap(60),
                     box(frameDevice,
                         {
                             row({item(ctlImage(0), sizeOfPicture), rest(lblDescriptionTag)}),
                             gap(60),
                             indented({
                                 columns({
                                     {names(lblSeconds(3), txtPowerLockoutTime(iOnTime)),
                                      wide(txtPowerLockoutTime(iOnTime), lNumberBoxWidth),
                                      names(lblSeconds(0), txtPowerLockoutTime(iOnTime))},
                                     {names(lblSeconds(2), txtPowerLockoutTime(iOffTime)),
                                      wide(txtPowerLockoutTime(iOffTime), lNumberBoxWidth),
                                      names(lblSeconds(1), txtPowerLockoutTime(iOffTime))},
                                 }),
                             }),
                         }),
                     gap(60),
                     box(fraContact,
                         {
                             row({item(ctlImage(1), sizeOfPicture), rest(chkContact)}),
                             gap(60),
                             indented({
                                 item(lblContact),
                                 indented({item(optContact(contactContinue)),
                                           item(optContact(contactPowerOff))}),
                             }),
                         }),
                 }),
                 frameInfo.Place(),
             }),
         });
  frameInfo.PlaceBorder();
}

}  // namespace steps
