#include "steps/TabLocation.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "common/modBrowsePath.h"
#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Rows.h"
#include "forms/Text.h"
#include "host/Numbers.h"

namespace steps {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::gOwnerForm;
using common::AddBackslash;

constexpr std::int32_t lNameLength = 50;  // until the document gives its own limit
constexpr std::int32_t lLocationLength = 250;

/// The folder that a system's folder lies in, with its backslash.
std::string ParentFolder(const std::string& strFolder) {
  const std::string strShorter = forms::withoutLast(strFolder, 1);
  const auto iBackslash = strShorter.find_last_of('\\');
  return iBackslash == std::string::npos ? strShorter : strShorter.substr(0, iBackslash + 1);
}

}  // namespace

TabLocation::TabLocation(forms::Container& container, std::string strName)
    : WizardStep(container, std::move(strName), "Name and Location", host::helpNameAndLocationTab) {
  MakeBanner(lblBanner);
  SetTabStops(false);
  txtSystemName.setMaxLength(lNameLength);
  txtLocation.setMaxLength(lLocationLength);
  txtLocation.setReadOnly(true);
  txtLocation.setBackColor(forms::colors::buttonFace);

  txtSystemName.change.connect([this] { txtSystemName_Change(); });
  txtSystemName.keyPress.connect([this](forms::KeyPress& key) { txtSystemName_KeyPress(key); });
  txtSystemName.lostFocus.connect([this] { txtSystemName_LostFocus(); });
  cmdBrowse.click.connect([this] { cmdBrowse_Click(); });
  offer("SetData", [this] { SetData(); });
  offer<bool&>("BeforeTabChange", [this](bool& bCancel) { BeforeTabChange(bCancel); });
  offer("OtherTabClicked", [this] { OtherTabClicked(); });
  LayOut();
}

bool TabLocation::SetData() {
  if (!addin::IsDocumentSet()) return false;
  {
    const forms::Guard loading(m_bLoading);
    const auto clsInfo = gDocument().get_SystemInfo();
    txtSystemName.setMaxLength(clsInfo->get_MaxNameLength());
    txtSystemName.setText(clsInfo->get_SystemName());
    txtLocation.setText(gDocument().get_Path());
    txtLocation.setToolTip(ParentFolder(txtLocation.text()));
  }
  m_strLastName = txtSystemName.text();
  MoveRegistrationIfFolderChanged();
  return true;
}

void TabLocation::MoveRegistrationIfFolderChanged() {
  if (forms::equalsIgnoringCase(txtLocation.text(), m_strOldLocation)) return;
  gOwnerForm().ResetApplicationStatus(m_strOldLocation, m_strOldName);
  gOwnerForm().SetApplicationStatus(txtLocation.text(), txtSystemName.text());
  m_strOldLocation = txtLocation.text();
  m_strOldName = txtSystemName.text();
}

void TabLocation::iTab_TabClicked() {
  SetTabStops(true);
  m_strOldLocation = txtLocation.text();
  m_strOldName = txtSystemName.text();
}

void TabLocation::BeforeTabChange(bool& bCancel) {
  if (!gAddIn().get_FolderChecksOK()) {
    bCancel = !gOwnerForm().CreateProjectFolder(txtLocation.text());
    gAddIn().put_FolderChecksOK(!bCancel);
  }
  if (gAddIn().get_FolderChecksOK()) MoveRegistrationIfFolderChanged();
}

bool TabLocation::iTab_SaveData() {
  if (!addin::IsDocumentSet()) return false;
  gDocument().put_Path(AddBackslash(txtLocation.text()));
  if (!forms::equalsIgnoringCase(gDocument().get_Name(), TrimmedName())) {
    gDocument().put_Name(TrimmedName());
  }
  return false;
}

void TabLocation::txtSystemName_KeyPress(forms::KeyPress& key) {
  if (key.character == U'\\') key.character = 0;
}

/// A name that is loaded is judged like one that is typed.
void TabLocation::txtSystemName_Change() {
  if (m_bRestoring) return;
  std::string strMessage;
  if (!txtSystemName.text().empty() &&
      !common::CheckValidName(txtSystemName.text(), /*bShowMessage=*/true, strMessage)) {
    RestoreLastName();
  }
  m_strLastName = txtSystemName.text();
  UpdateFolderFromName();
  if (!m_bLoading && !gDocument().get_Modified()) gDocument().MarkChanged();
}

/// The caret stays where it was before the characters that were refused.
void TabLocation::RestoreLastName() {
  const forms::Guard restoring(m_bRestoring);
  std::int32_t lCaret = txtSystemName.selectionStart();
  if (forms::length(txtSystemName.text()) > forms::length(m_strLastName)) --lCaret;
  txtSystemName.setText(m_strLastName);
  txtSystemName.select(lCaret, 0);
}

void TabLocation::UpdateFolderFromName() {
  std::string strParent = ParentFolder(txtLocation.text());
  // The second backslash stands for the missing name, so that the next edit stays in this folder.
  if (TrimmedName().empty()) strParent += "\\";
  txtLocation.setText(SystemFolder(strParent));
  txtLocation.setToolTip(strParent);
  if (!m_bLoading) gAddIn().put_FolderChecksOK(false);
}

std::string TabLocation::TrimmedName() const { return forms::trimmed(txtSystemName.text()); }

std::string TabLocation::SystemFolder(const std::string& strParent) const {
  return AddBackslash(AddBackslash(strParent) + TrimmedName());
}

void TabLocation::txtSystemName_LostFocus() {
  if (txtSystemName.text().empty()) {
    forms::Application::current().messageBox("Please enter a system name to continue.",
                                             forms::Buttons::ok, forms::Icon::information,
                                             gAddIn().IAddInContract_Title());
    forms::ignoringErrors([this] { txtSystemName.setFocus(); });
    return;
  }
  std::string strName = TrimmedName();
  gOwnerForm().CheckValidSystemName(strName);  // it tells the user by itself
}

void TabLocation::cmdBrowse_Click() {
  const std::string strFolder = common::BrowseForFolder(
      gAddIn().GetActiveWindowHandle(), "Save your system in this folder:", gDocument().get_Path());
  if (strFolder.empty()) return;
  txtLocation.setText(SystemFolder(strFolder));
  txtLocation.setToolTip(AddBackslash(strFolder));
}

void TabLocation::SetTabStops(bool bValue) {
  txtSystemName.setTabStop(bValue);
  cmdBrowse.setTabStop(bValue);
}

void TabLocation::LayOut() {
  using namespace forms;
  layOut(pageArea, {
                       rest(lblBanner),
                       gap(60),
                       box(frameNameLocation,
                           {
                               item(Label1),
                               columns({
                                   {names(lblSystemName, txtSystemName), rest(txtSystemName)},
                               }),
                               gap(240),
                               item(Label3),
                               columns({
                                   {names(lblLocation, txtLocation), rest(txtLocation)},
                               }),
                               row({spring(), item(cmdBrowse)}),
                           }),
                   });
}

}  // namespace steps
