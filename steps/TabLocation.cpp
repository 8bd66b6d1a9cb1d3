#include "steps/TabLocation.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "common/modBrowsePath.h"
#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Paths.h"
#include "forms/Rows.h"
#include "forms/Text.h"
#include "host/Numbers.h"
#include "host/UnsavedWork.h"

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
  offer<host::UnsavedAnswers&>("TellUnsaved", [this](host::UnsavedAnswers& unsaved) {
    unsaved.strPath = AddBackslash(m_strLocation);
    unsaved.strName = NameToSave();
  });
  LayOut();
}

bool TabLocation::SetData() {
  if (!addin::IsDocumentSet()) return false;
  {
    const forms::Guard loading(m_bLoading);
    const auto clsInfo = gDocument().get_SystemInfo();
    txtSystemName.setMaxLength(clsInfo->get_MaxNameLength());
    txtSystemName.setText(clsInfo->get_SystemName());
    PutLocation(gDocument().get_Path(), ParentFolder(gDocument().get_Path()));
  }
  m_strLastName = txtSystemName.text();
  MoveRegistrationIfFolderChanged();
  return true;
}

void TabLocation::MoveRegistrationIfFolderChanged() {
  if (forms::equalsIgnoringCase(m_strLocation, m_strOldLocation)) return;
  gOwnerForm().ResetApplicationStatus(m_strOldLocation, m_strOldName);
  gOwnerForm().SetApplicationStatus(m_strLocation, txtSystemName.text());
  m_strOldLocation = m_strLocation;
  m_strOldName = txtSystemName.text();
}

void TabLocation::iTab_TabClicked() {
  SetTabStops(true);
  m_strOldLocation = m_strLocation;
  m_strOldName = txtSystemName.text();
}

void TabLocation::BeforeTabChange(bool& bCancel) {
  if (!gAddIn().get_FolderChecksOK()) {
    bCancel = !IsNameAccepted() || !gAddIn().TrySystemFolder(m_strLocation);
    gAddIn().put_FolderChecksOK(!bCancel);
  }
  if (bCancel) {
    forms::ignoringErrors([this] { txtSystemName.setFocus(); });
  } else {
    MoveRegistrationIfFolderChanged();
  }
}

/// Who pressed the button that the page is left by has left the box, and has been told by then.
bool TabLocation::IsNameAccepted() {
  if (!m_bNameRefused || !txtSystemName.hasFocus()) m_bNameRefused = !CheckName();
  return !m_bNameRefused;
}

/// False: the user has been told why the name can't be a system's.
bool TabLocation::CheckName() {
  if (txtSystemName.text().empty()) {
    forms::Application::current().messageBox("Please enter a system name to continue.",
                                             forms::Buttons::ok, forms::Icon::information,
                                             gAddIn().IAddInContract_Title());
    return false;
  }
  std::string strName = TrimmedName();
  return gOwnerForm().CheckValidSystemName(strName);
}

bool TabLocation::iTab_SaveData() {
  if (!addin::IsDocumentSet()) return false;
  gDocument().put_Path(AddBackslash(m_strLocation));
  gDocument().put_Name(NameToSave());
  return false;
}

/// One that differs in case alone keeps the spelling that it has.
std::string TabLocation::NameToSave() const {
  const std::string strName = gDocument().get_Name();
  return forms::equalsIgnoringCase(strName, TrimmedName()) ? strName : TrimmedName();
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
  m_bNameRefused = false;
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
  PutParentFolder(ParentFolder(m_strLocation));
  if (!m_bLoading) gAddIn().put_FolderChecksOK(false);
}

/// A second backslash stands for a missing name, so that the next edit stays in this folder.
void TabLocation::PutParentFolder(const std::string& strFolder) {
  const std::string strParent = AddBackslash(strFolder);
  PutLocation(strParent + TrimmedName() + "\\", strParent);
}

void TabLocation::PutLocation(const std::string& strFolder, const std::string& strParent) {
  m_strLocation = strFolder;
  txtLocation.setText(forms::toMachinePath(strFolder).string());
  txtLocation.setToolTip(forms::toMachinePath(strParent).string());
}

std::string TabLocation::TrimmedName() const { return forms::trimmed(txtSystemName.text()); }

void TabLocation::txtSystemName_LostFocus() {
  m_bNameRefused = !CheckName();
  if (m_bNameRefused) forms::ignoringErrors([this] { txtSystemName.setFocus(); });
}

void TabLocation::cmdBrowse_Click() {
  const std::string strFolder = common::BrowseForFolder(
      gAddIn().GetActiveWindowHandle(), "Save your system in this folder:", gDocument().get_Path());
  if (strFolder.empty()) return;
  gDocument().MarkChangedButProgram();
  PutParentFolder(strFolder);
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
