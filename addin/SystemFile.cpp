#include "addin/IAddIn.h"
#include "addin/ProgramBuilder.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Components.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/iTab.h"

namespace addin {
namespace {

using forms::Answer;
using forms::Buttons;
using forms::Icon;

constexpr const char* strTemplateName = "Orlena TEMPLATE";
constexpr const char* strNewSystemName = "My Orlena System";
constexpr const char* strLocationTab = "Name and Location";

/// The device types of the host's library that a room of the wizard can hold.
const std::vector<std::int16_t> colFilter{1070, 1992, 1982, 1983, 1071, 1984, 1985,
                                          1986, 1987, 1988, 1989, 1993, 2494};

Answer Show(const std::string& strText, Icon eIcon, const std::string& strCaption) {
  return forms::Application::current().messageBox(strText, Buttons::ok, eIcon, strCaption);
}

/// The folder and those around it that are not there, the innermost first.
std::vector<std::string> MissingFolders(const std::string& strFolder) {
  std::vector<std::string> colMissing;
  std::string strMissing = forms::withoutLast(common::AddBackslash(strFolder), 1);
  while (!strMissing.empty() && !common::FolderExists(strMissing)) {
    colMissing.push_back(strMissing);
    strMissing = forms::withoutLast(forms::folderOf(strMissing), 1);
  }
  return colMissing;
}

/// Some failures have no text.
std::string FailureText(const ProgramBuilder& clsGenerate) {
  const std::string strText = clsGenerate.GetLastError();
  if (!strText.empty()) return strText;
  return "The program could not be written for " + clsGenerate.GetFailedPart() + ".";
}

std::string SystemFile() { return gDocument().get_Path() + gDocument().get_Name(); }

}  // namespace

bool IAddIn::StartSystem() {
  return m_bUseOpenFile && IsDocumentSet() ? OpenCurrentSystem() : NewSystem();
}

std::string IAddIn::GetTemplatePath() const {
  const std::string strName = strTemplateName;
  return "TemplateSystems\\" + strName + "\\" + strName + ".tsy";
}

bool IAddIn::NewSystem() {
  const std::string strTemplate = common::AddBackslash(forms::Application::current().folder()) +
                                  forms::trimmed(GetTemplatePath());
  if (IsDocumentSet()) {
    gDocument().Close();
    SetDocument(nullptr);
  }
  const auto clsDocument = gOwnerForm().FileOpen(strTemplate, /*bUseRecovery=*/false);
  if (!clsDocument) {
    Show("Failed to find " + forms::toMachinePath(strTemplate).string() + ": Critical Error",
         Icon::critical, IAddInContract_Title());
    return false;
  }
  SetDocument(clsDocument);
  ChooseNewSystemName();
  gDocument().MarkUnchanged();
  gDocument().get_SystemInfo()->put_LastApplication(GetApplicationName());
  FileOpen();
  m_bUseOpenFile = false;
  return true;
}

/// The first of "My Orlena System", "My Orlena System 2" and on that has no folder yet.
void IAddIn::ChooseNewSystemName() {
  const std::string strFolder = GetDefaultSystemsFolder();
  std::string strName = strNewSystemName;
  for (std::int32_t i = 2; common::FolderExists(strFolder + strName); ++i) {
    strName = std::string(strNewSystemName) + " " + std::to_string(i);
  }
  gDocument().put_Path(strFolder + strName);
  gDocument().put_Name(strName);
}

bool IAddIn::OpenCurrentSystem() {
  FileOpen();
  const std::string strApplication = gDocument().get_SystemInfo()->get_LastApplication();
  if (forms::equalsIgnoringCase(strApplication, GetApplicationName())) return true;

  Show("This file was last saved by the following application: \r\n" + strApplication +
           "\r\n\r\nTherefore it can not be opened in the Orlena."
           "\r\n\r\nClick OK to continue with a new Orlena System.",
       Icon::critical, "Orlena");
  gOwnerForm().ResetApplicationStatus(gDocument().get_Path(), gDocument().get_Name());
  return NewSystem();
}

bool IAddIn::OpenSystemFile(bool& bCancelled) {
  const auto clsDocument = gOwnerForm().FileOpen(bCancelled);
  if (bCancelled || !clsDocument) return false;
  SetDocument(clsDocument);
  m_bUseOpenFile = true;
  return OpenCurrentSystem();
}

bool IAddIn::CheckSystemLocation() {
  if (m_bFolderChecksOK) return true;
  for (forms::UserControl* oStep : m_frmAddIn->GetControls()) {
    const auto* oTab = dynamic_cast<const host::iTab*>(oStep);
    if (!oTab || !forms::equalsIgnoringCase(oTab->iTab_GetTabName(), strLocationTab)) continue;
    bool bCancel = false;
    oStep->call<bool&>("BeforeTabChange", bCancel);
    if (bCancel) return false;
  }
  return true;
}

bool IAddIn::TrySystemFolder(const std::string& strFolder) {
  const auto colMissing = MissingFolders(strFolder);
  if (!gOwnerForm().CreateProjectFolder(strFolder)) return false;
  m_colTriedFolders.insert(m_colTriedFolders.end(), colMissing.rbegin(), colMissing.rend());
  return true;
}

void IAddIn::RemoveTriedFolders() {
  for (; !m_colTriedFolders.empty(); m_colTriedFolders.pop_back()) {
    common::RemoveEmptyFolder(m_colTriedFolders.back());
  }
}

bool IAddIn::SaveSystem(bool bShowWarnings, bool bSaveAs) {
  if (!IsDocumentSet()) return false;
  const auto clsInfo = gDocument().get_SystemInfo();
  const bool bProgramWasCurrent = clsInfo->get_ProgramIsCurrent();
  if (!m_frmAddIn->SaveData()) return false;
  if (!SaveAttributes()) return false;

  std::string sError;
  if (!BuildProgram(bShowWarnings, sError)) {
    Show("Failed to build the system \r\n\r\n" + sError +
             "\r\n\r\nPlease contact Velmondo for assistance.",
         Icon::critical, "Orlena");
  }
  // Writing the program touches the flag, and a mere save neither changes nor compiles it.
  clsInfo->put_ProgramIsCurrent(bProgramWasCurrent);

  if (bSaveAs) return gOwnerForm().FileSaveAs(SystemFile(), GetApplicationName());
  bool bSaved = false;  // not looked at: the caller works with what stands on disk
  gDocument().Save(SystemFile(), bSaved);
  return true;
}

bool IAddIn::BuildProgram(bool bShowWarnings, std::string& sError) {
  const auto clsGenerate = forms::createObject<ProgramBuilder>(progIDProgramBuilder);
  const bool bBuilt = clsGenerate->Build();
  sError = bBuilt ? std::string() : FailureText(*clsGenerate);
  TellWarnings(*clsGenerate->GetErrorItems(), bShowWarnings);
  return bBuilt;
}

void IAddIn::TellWarnings(const ErrorItems& colErrorItems, bool bShow) const {
  if (colErrorItems.empty()) return;
  std::string strText;
  for (const auto& oItem : colErrorItems) strText += oItem->get_Message() + "\r\n";
  if (bShow) {
    Show(strText, Icon::information, {});
  } else {
    forms::Application::current().desktop().note(strText);
  }
}

bool IAddIn::QueryCloseSystem(Answer& iResponse) {
  if (!IsDocumentSet()) return true;
  if (!gDocument().get_Modified() && !m_frmAddIn->HasOpenEdit()) return true;
  iResponse = forms::Application::current().messageBox(
      "Do you wish to save the changes you made to the system?", Buttons::yesNoCancel,
      Icon::question, "Orlena");
  if (iResponse != Answer::yes) return iResponse == Answer::no;
  m_frmAddIn->TakeOpenEdit();
  if (!CheckSystemLocation()) return false;
  SaveSystemAs();  // not looked at: Yes lets the wizard close even when it failed
  return true;
}

void IAddIn::SetLibraryFilter() {
  gLibraryManager().get_DeviceTypes()->put_DeviceFilter(colFilter);
}

}  // namespace addin
