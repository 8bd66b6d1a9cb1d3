#include "shell/frmAddIn.h"

#include <ctime>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/CommonFunctions.h"
#include "common/modHTMLHelp.h"
#include "forms/Application.h"
#include "forms/OpenEdit.h"
#include "forms/User.h"
#include "host/Numbers.h"
#include "host/iTab.h"

namespace shell {
namespace {

using addin::gAddIn;
using addin::gDocument;
using addin::gOwnerForm;
using forms::Answer;
using forms::Buttons;
using forms::Icon;

constexpr forms::Size sizeOfWindow{9705, 7500};
constexpr forms::Rect placeOfSteps{0, -120, 2415, 6315};
/// The negative top puts the headers of the pages out of reach: pages change through the window's
/// own controls alone.
constexpr forms::Rect placeOfTabs{2460, -660, 8355, 6795};

forms::Font fontOfSteps(bool bSelected) {
  return {.name = "Tahoma", .points = 8.25, .bold = bSelected};
}

/// "14:05"
std::string TimeOfDay() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  char text[sizeof "hh:mm"];
  return {text, std::strftime(text, sizeof text, "%H:%M", &local)};
}

forms::Application& App() { return forms::Application::current(); }

}  // namespace

frmAddIn::frmAddIn() : Form("frmAddIn"), m_strOldHelpFile(App().helpFile()) {
  ctlTabs.initProperties();
  ShowSteps(false);
  setKeyPreview(true);

  loading.connect([this] { Form_Load(); });
  activated.connect([this] { Form_Activate(); });
  queryUnload.connect([this](bool& Cancel, forms::UnloadMode) { Form_QueryUnload(Cancel); });
  unloading.connect([this] { Form_Unload(); });
  keyDown.connect([this](forms::KeyDown& key) { Form_KeyDown(key); });

  cmdNew.setShortcut(U'N');
  cmdFolder.setShortcut(U'O');
  cmdSave.setShortcut(U'S');
  cmdNew.click.connect([this] { cmdNew_Click(); });
  cmdFolder.click.connect([this] { cmdFolder_Click(); });
  cmdSave.click.connect([this] { cmdSave_Click(); });
  cmdUserPath.click.connect([this] { cmdUserPath_Click(); });
  cmdBack.click.connect([this] { cmdBack_Click(); });
  cmdNext.click.connect([this] { cmdNext_Click(); });
  cmdFinish.click.connect([this] { cmdFinish_Click(); });
  cmdHelp.click.connect([this] { cmdHelp_Click(); });
  ctlSteps.OnStepClicked.connect([this](std::int16_t& iStep) { ctlSteps_OnStepClicked(iStep); });
  ctlTabs.OnTabChanged.connect([this](std::int16_t&, std::int16_t& iCurrentTab) {
    forms::ignoringErrors([&] { ctlTabs_OnTabChanged(iCurrentTab); });
  });
}

void frmAddIn::Form_Load() {
  App().setMousePointer(forms::MousePointer::hourglass);
  m_iCurrentTab = 0;
  setCaption(gAddIn().IAddInContract_Title());
  setSize(sizeOfWindow);
  LayOut();
  App().setHelpFile(gAddIn().IAddInContract_GetHelpFile());
  common::CloseAllHelp();
  forms::ignoringErrors([this] { LoadSteps(); });
  SetBackNextState();
  ctlTabs.put_ShowBackNext(false);
  App().setMousePointer(forms::MousePointer::standard);
}

void frmAddIn::LoadSteps() {
  for (const std::string& strProgID : gAddIn().GetTabProgIDs()) {
    const std::string strName = "ctl" + std::to_string(m_colSteps.size());
    if (auto* extStep = ctlTabs.AddTab(strProgID, strName)) m_colSteps.push_back(extStep);
  }
  ctlTabs.setVisible(true);

  ctlSteps.put_StepCount(static_cast<std::int16_t>(m_colSteps.size() - 2));
  for (std::size_t i = 0; i < m_colSteps.size(); ++i) {
    ctlSteps.SetStepText(Tab(static_cast<std::int16_t>(i)).iTab_GetTabName(),
                         static_cast<std::int16_t>(i));
  }
  ctlSteps.setVisible(true);
  setHelpContext(Tab(0).iTab_GetHelpContextID());
}

host::iTab& frmAddIn::Tab(std::int16_t iStep) const {
  if (iStep < 0 || iStep > LastTab()) {
    throw forms::Error(forms::errors::indexOutOfRange,
                       "The wizard has no step " + std::to_string(iStep) + ".");
  }
  return host::AsTab(*m_colSteps[static_cast<std::size_t>(iStep)]);
}

void frmAddIn::LayOut() {
  ctlSteps.setBounds(placeOfSteps);
  ctlTabs.setBounds(placeOfTabs);
  Line1.setBounds({0, 6240, innerSize().width, 30});
  Frame1.setBorder(false);
  Frame1.setBounds({120, 6390, 2160, 540});

  struct FileButton {
    forms::CommandButton& cmdFile;
    const char* strToolTip;
    const char* strPicture;
  };
  const FileButton buttons[] = {{cmdNew, "Create a new system...", "new.svg"},
                                {cmdFolder, "Open an existing system...", "open.svg"},
                                {cmdSave, "Save current system...", "save.svg"},
                                {cmdUserPath, "Preferences...", "preferences.svg"}};
  const std::string strFolder = common::AddBackslash(App().folder()) + "pictures\\";
  forms::Twips lLeft = 0;
  for (const FileButton& button : buttons) {
    button.cmdFile.setToolTip(button.strToolTip);
    button.cmdFile.setBounds({lLeft, 0, 480, 480});
    lLeft += 540;
    forms::ignoringErrors(
        [&] { button.cmdFile.setPicture(App().loadPicture(strFolder + button.strPicture)); });
  }

  lblSaved.setBounds({3870, 6525, 1560, 255});
  cmdHelp.setBounds({2580, 6420, 1200, 420});
  cmdBack.setBounds({5520, 6420, 1200, 420});
  cmdNext.setBounds({6780, 6420, 1200, 420});
  cmdFinish.setBounds({8220, 6420, 1200, 420});
}

void frmAddIn::Form_Activate() {
  if (!m_bActivated && !StartWizard()) return;
  const auto SetSelectedFont = [this] { ctlSteps.SetSelectedFont(fontOfSteps(true)); };
  const auto SetNormalFont = [this] { ctlSteps.SetNormalFont(fontOfSteps(false)); };
  if (gAddIn().IAddInContract_StartupMode() != 0) {
    forms::ignoringErrors(SetSelectedFont);
    forms::ignoringErrors(SetNormalFont);
  } else {
    SetSelectedFont();
    SetNormalFont();
  }
}

/// False: no system could be started, and the window is gone.
bool frmAddIn::StartWizard() {
  if (!gAddIn().StartSystem()) {
    ShowSteps(false);
    FailToStart();
    return false;
  }
  SetStepsData();
  ShowSteps(true);
  m_bActivated = true;
  gAddIn().ResumeInWindow();
  return true;
}

void frmAddIn::FailToStart() {
  App().messageBox("Failed to start " + gAddIn().IAddInContract_Title() +
                       "\r\n\r\nContact Velmondo customer support.",
                   Buttons::ok, Icon::critical);
  gOwnerForm().DestroyDoc();
  unload();
}

void frmAddIn::SetStepsData() {
  for (forms::UserControl* extStep : m_colSteps) extStep->call("SetData");
}

void frmAddIn::ShowSteps(bool bShow) {
  ctlTabs.setVisible(bShow);
  ctlSteps.setVisible(bShow);
}

bool frmAddIn::HasOpenEdit() const {
  const forms::Control* oControl = focus().control();
  return oControl && oControl->hasOpenEdit();
}

/// Most steps store at once what they are told, and hold nothing.
void frmAddIn::TellUnsaved(host::UnsavedAnswers& unsaved) const {
  unsaved.whereabouts.iPage = m_iCurrentTab;
  unsaved.whereabouts.edit = forms::openEditOf(*this);
  for (forms::UserControl* extStep : m_colSteps) {
    forms::ignoringErrors([&] { extStep->call<host::UnsavedAnswers&>("TellUnsaved", unsaved); });
  }
}

void frmAddIn::ResumeWork(const host::Whereabouts& whereabouts) {
  const std::int16_t iPage = whereabouts.iPage;
  if (iPage != m_iCurrentTab && iPage <= LastTab()) ShowStep(iPage);
  for (forms::UserControl* extStep : m_colSteps) {
    forms::ignoringErrors(
        [&] { extStep->call<const host::Whereabouts&>("ResumeUnsaved", whereabouts); });
  }
  forms::User(App()).resume(*this, whereabouts.edit);
}

bool frmAddIn::SaveData() {
  for (forms::UserControl* extStep : m_colSteps) host::AsTab(*extStep).iTab_SaveData();
  return true;
}

void frmAddIn::SetBackNextState() {
  cmdBack.setEnabled(m_iCurrentTab != 0);
  cmdNext.setEnabled(m_iCurrentTab != LastTab());
}

void frmAddIn::ctlTabs_OnTabChanged(std::int16_t iCurrentTab) {
  m_iCurrentTab = iCurrentTab;
  ctlSteps.SetCurrentStep(m_iCurrentTab);
  SetBackNextState();
  setHelpContext(Tab(m_iCurrentTab).iTab_GetHelpContextID());
  ctlTabs.SetHelpContextID(helpContext());
}

void frmAddIn::ctlSteps_OnStepClicked(std::int16_t iStep) { ctlTabs.SetCurrentTab(iStep); }

void frmAddIn::cmdBack_Click() { TurnPage(-1); }

void frmAddIn::cmdNext_Click() { TurnPage(1); }

/// A page that refuses to be left has put the focus where its reason lies.
void frmAddIn::TurnPage(std::int16_t iOffset) {
  const std::int16_t iPreviousTab = m_iCurrentTab;
  ctlTabs.SetCurrentTab(static_cast<std::int16_t>(iPreviousTab + iOffset));
  if (m_iCurrentTab == iPreviousTab) return;
  focus().moveToFirstField(*m_colSteps[static_cast<std::size_t>(m_iCurrentTab)]);
}

void frmAddIn::cmdHelp_Click() { common::ShowHelpTopic(windowHandle(), host::helpOfActiveForm); }

void frmAddIn::Form_KeyDown(forms::KeyDown& key) {
  if (key.code != forms::keys::f1) return;
  key.code = 0;
  cmdHelp_Click();
}

void frmAddIn::cmdUserPath_Click() { gAddIn().ShowPreferences(); }

void frmAddIn::cmdSave_Click() {
  if (!gAddIn().CheckSystemLocation()) return;
  if (gAddIn().SaveSystemAs()) {
    lblSaved.setCaption("Saved at " + TimeOfDay());
  } else {
    lblSaved.setCaption("");
    App().messageBox("Save failed.", Buttons::ok, Icon::exclamation);
  }
}

void frmAddIn::cmdNew_Click() {
  Answer iResponse{};
  if (!gAddIn().QueryCloseSystem(iResponse)) return;
  if (addin::IsDocumentSet()) {
    gDocument().MarkUnchanged();
    gOwnerForm().DestroyDoc();
    addin::SetDocument(nullptr);
  }
  lblSaved.setCaption("");
  const bool bStarted = gAddIn().NewSystem();
  ShowSteps(bStarted);
  if (bStarted) {
    SetStepsData();
    ctlTabs.SetCurrentTab(0);
  } else {
    FailToStart();
  }
}

void frmAddIn::cmdFolder_Click() {
  Answer iResponse{};
  if (!gAddIn().QueryCloseSystem(iResponse)) return;
  const bool bUnsaved = addin::IsDocumentSet() && gDocument().get_Modified();
  if (bUnsaved) gDocument().MarkUnchanged();  // the host asks nothing further
  bool bCancelled = false;
  const bool bOpened = gAddIn().OpenSystemFile(bCancelled);
  if (bCancelled || !bOpened) {
    if (bUnsaved && addin::IsDocumentSet()) gDocument().MarkChangedButProgram();
    return;
  }
  lblSaved.setCaption("");
  ctlTabs.SetCurrentTab(0);
  SetStepsData();
  gAddIn().ResumeInWindow();
}

void frmAddIn::cmdFinish_Click() {
  if (m_iCurrentTab != LastTab()) return ctlTabs.SetCurrentTab(LastTab());
  const std::string strTitle = gAddIn().IAddInContract_Title();
  const Answer iResponse =
      App().messageBox("Are you sure you want to exit the " + strTitle + " wizard?", Buttons::yesNo,
                       Icon::question, strTitle);
  if (iResponse == Answer::yes) unload();
}

void frmAddIn::Form_QueryUnload(bool& Cancel) {
  Cancel = true;  // an error on the way keeps the window, so that nothing is lost
  Answer iResponse{};
  if (!gAddIn().QueryCloseSystem(iResponse)) return;
  if (addin::IsDocumentSet()) {
    gDocument().MarkUnchanged();
    gOwnerForm().DestroyDoc();
  }
  Cancel = false;
}

void frmAddIn::Form_Unload() {
  m_colSteps.clear();
  App().setHelpFile(m_strOldHelpFile);
}

}  // namespace shell
