#include "shell/frmBuildPanels.h"

#include <algorithm>
#include <cstdlib>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "common/MCommonDialog.h"
#include "common/modHTMLHelp.h"
#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Rows.h"
#include "host/Numbers.h"

namespace shell {
namespace {

using addin::gOwnerForm;

constexpr forms::Size sizeOfWindow{9705, 6990};
constexpr forms::Twips lMargin = 240;

constexpr const char* strInfo =
    "Each warning represents a button that did not get default programming assigned because a "
    "device did not support a standard command.\r\n\r\nTo fix this you can go to Trellisar and add "
    "programming to these buttons or remove these buttons.";

forms::Application& App() { return forms::Application::current(); }

}  // namespace

frmBuildPanels::frmBuildPanels() : Form("frmBuildPanels") {
  setCaption("Touchpanel Creation");
  ctlImage.put_BackColor(lblInfo.backColor());
  ctlImage.put_Picture(addin::frmImages().get_ImageList().item(host::pictureSmallInformation));
  lblInfo.setCaption(strInfo);
  ctlErrorLog.SetLogOptions(true, true);
  frameInfo.setVisible(false);
  cmdClose.setVisible(false);
  cmdClose.setDefault(true);
  cmdClose.setCancel(true);
  cmdSave.setVisible(false);
  cmdSave.setToolTip("Save Log to File...");
  LayOut();

  loading.connect([this] { Form_Load(); });
  activated.connect([this] { Form_Activate(); });
  queryUnload.connect(
      [this](bool& Cancel, forms::UnloadMode eMode) { Form_QueryUnload(Cancel, eMode); });
  resized.connect([this] { Form_Resize(); });
  unloading.connect([this] { Form_Unload(); });
  ctlErrorLog.ItemDoubleClicked.connect(
      [this](const auto& oItem) { ctlErrorLog_ItemDoubleClicked(*oItem); });
  cmdClose.click.connect([this] { cmdClose_Click(); });
  cmdSave.click.connect([this] { cmdSave_Click(); });
  cmdHelp.click.connect([this] { cmdHelp_Click(); });
}

void frmBuildPanels::Form_Load() {
  m_clsProjects = gOwnerForm().GetUIMgr()->get_Projects();
  m_onStartBuild = m_clsProjects->OnStartBuild.listen([this] { m_clsProjects_OnStartBuild(); });
  m_clsTessraErrorLog = gOwnerForm().GetUIMgr()->get_ErrorLog();
  m_onAboutToAddError = m_clsTessraErrorLog->OnAboutToAddError.listen(
      [this](const auto& oItem, bool&) { m_clsTessraErrorLog_OnAboutToAddError(*oItem); });
  Clear();
  m_clsTessraErrorLog->put_AttachedControl(&ctlErrorLog);
  setHelpContext(host::helpTouchpanelCreation);
}

void frmBuildPanels::Clear() { gOwnerForm().GetUIMgr()->get_ErrorLog()->Clear(); }

void frmBuildPanels::Form_Activate() {
  // The run has its end also when an error leaves it.
  const forms::AtEnd ended([this] { EndRun(); });
  const forms::Guard running(m_bRunning);
  addin::gAddIn().CreateTouchpanelProjects();  // a project that could not be made has been told
}

void frmBuildPanels::EndRun() {
  ShowState(lblPleaseWait, "Interface Creation Complete");
  ShowState(lblProgress, "");
  lblGenerating.setCaption("");
  cmdClose.setVisible(true);
  if (!ctlErrorLog.HasItems()) {
    cmdClose_Click();
    return;
  }
  frameInfo.setVisible(true);
  cmdSave.setVisible(true);
  cmdClose.setFocus();
}

/// The work can't be broken off.
void frmBuildPanels::Form_QueryUnload(bool& Cancel, forms::UnloadMode eMode) {
  if (m_bRunning && eMode == forms::UnloadMode::closeBox) Cancel = true;
}

void frmBuildPanels::ShowState(forms::Label& lblState, const std::string& strText) {
  lblState.setCaption(strText);
  Form_Resize();
}

void frmBuildPanels::m_clsProjects_OnStartBuild() {
  ShowState(lblPleaseWait, "Please Wait...");
  cmdClose.setVisible(false);
  App().processEvents();
  Form_Resize();
  cmdSave.setVisible(false);
}

void frmBuildPanels::m_clsTessraErrorLog_OnAboutToAddError(host::clsErrorItem& oItem) {
  if (oItem.get_Severity() == host::severityProgress) {
    ShowState(lblProgress, oItem.get_Message());
  } else {
    oItem.put_CanActivate(false);
  }
}

void frmBuildPanels::ctlErrorLog_ItemDoubleClicked(host::clsErrorItem& oItem) {
  oItem.Activate("", nullptr);
}

void frmBuildPanels::cmdSave_Click() {
  common::SaveFileDialog dialog;
  dialog.sFileName = "LogFile.txt";
  dialog.hwndOwner = windowHandle();
  dialog.sInitialDir = App().folder();
  dialog.sDefaultExt = "txt";
  common::ShowSaveFileDialog(dialog);
  if (!dialog.sFileName.empty()) ctlErrorLog.SaveToFile(dialog.sFileName, /*bAppend=*/false);
}

void frmBuildPanels::cmdHelp_Click() {
  common::ShowHelpTopic(windowHandle(), host::helpTouchpanelCreation);
}

void frmBuildPanels::LayOut() {
  setSizeable(true);
  setMinimumSize(sizeOfWindow);
  lblPleaseWait.setFont({.points = 12, .bold = true});
  lblPleaseWait.setBounds({0, 150, 0, 330});
  lblProgress.setBounds({0, 510, 0, 255});
  lblGenerating.setBounds({lMargin, 840, 6000, 255});
  ctlErrorLog.setBounds({lMargin, 1110, 0, 3300});
  frameInfo.setBorder(false);
  frameInfo.setBounds({lMargin, 4560, 9150, 1140});
  ctlImage.setBounds({90, 90, 480, 480});
  lblInfo.setBounds({660, 90, 8400, 960});
  lblBorder.setBorder(true);
  lblBorder.setBounds({0, 0, 9150, 1140});
  cmdSave.setBounds({lMargin, 5880, 1500, 420});
  cmdClose.setBounds({0, 5880, 1500, 420});
  cmdHelp.setBounds({7890, 5880, 1500, 420});
  setSize(sizeOfWindow);
  Form_Resize();
}

void frmBuildPanels::Form_Resize() {
  if (size().width < sizeOfWindow.width || size().height < sizeOfWindow.height) {
    setSize(
        {std::max(size().width, sizeOfWindow.width), std::max(size().height, sizeOfWindow.height)});
    return;  // it has been laid out by then
  }
  const forms::Twips lInner = innerSize().width;
  const forms::Rect log = ctlErrorLog.bounds();
  ctlErrorLog.setBounds({log.left, log.top, lInner - 2 * log.left, log.height});
  const auto Centre = [lInner](forms::Control& control, forms::Twips lWidth) {
    const forms::Rect place = control.bounds();
    control.setBounds({std::abs(lInner / 2 - lWidth / 2), place.top, lWidth, place.height});
  };
  Centre(cmdClose, cmdClose.bounds().width);
  // A label is as wide as its text.
  for (forms::Label* lblText : {&lblPleaseWait, &lblProgress}) {
    Centre(*lblText, forms::naturalSize(*lblText).width);
  }
}

/// The log never holds the control of a closed window.
void frmBuildPanels::Form_Unload() {
  m_onStartBuild.end();
  m_clsProjects.reset();
  if (m_clsTessraErrorLog && m_clsTessraErrorLog->get_AttachedControl() == &ctlErrorLog) {
    m_clsTessraErrorLog->put_AttachedControl(nullptr);
  }
  m_onAboutToAddError.end();
  m_clsTessraErrorLog.reset();
}

}  // namespace shell
