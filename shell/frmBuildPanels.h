#pragma once

#include <memory>
#include <string>

#include "addin/TouchpanelWindow.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "host/ErrorLog.h"
#include "host/UIManager.h"
#include "host/ctlImage.h"

namespace shell {

/// The window in which the projects of the touch panels are made: what is under way, and the
/// warnings of the panel design application, which the user can keep in a file. The work begins
/// when it is activated; without a warning it closes by itself.
class frmBuildPanels : public forms::Form, public addin::TouchpanelWindow {
 public:
  frmBuildPanels();

  void ShowModal() override { showModal(nullptr); }
  void Unload() override { unload(); }

  /// Empties the error log of the host's manager of panel projects.
  void Clear();

 private:
  void Form_Load();
  void Form_Activate();
  void Form_QueryUnload(bool& Cancel, forms::UnloadMode eMode);
  void Form_Resize();
  void Form_Unload();

  void m_clsProjects_OnStartBuild();
  void m_clsTessraErrorLog_OnAboutToAddError(host::clsErrorItem& oItem);
  void ctlErrorLog_ItemDoubleClicked(host::clsErrorItem& oItem);
  void cmdClose_Click() { hide(); }
  void cmdSave_Click();
  void cmdHelp_Click();

  void EndRun();
  /// The two lines of state stay in the middle.
  void ShowState(forms::Label& lblState, const std::string& strText);
  void LayOut();

  forms::Label lblPleaseWait{*this, "lblPleaseWait", "Please Wait..."};
  forms::Label lblProgress{*this, "lblProgress"};
  forms::Label lblGenerating{*this, "lblGenerating", "Touchpanel Generation Messages:"};
  host::ErrorLog ctlErrorLog{*this, "ctlErrorLog"};
  forms::Frame frameInfo{*this, "frameInfo"};
  host::ctlImage ctlImage{frameInfo, "ctlImage"};
  forms::Label lblInfo{frameInfo, "lblInfo"};
  forms::Label lblBorder{frameInfo, "lblBorder"};
  forms::CommandButton cmdSave{*this, "cmdSave", "&Save to File..."};
  forms::CommandButton cmdClose{*this, "cmdClose", "&Continue"};
  forms::CommandButton cmdHelp{*this, "cmdHelp", "&Help"};

  std::shared_ptr<host::Projects> m_clsProjects;
  std::shared_ptr<host::TessraErrorLog> m_clsTessraErrorLog;
  forms::Subscription m_onStartBuild;
  forms::Subscription m_onAboutToAddError;
  bool m_bRunning = false;
};

}  // namespace shell
