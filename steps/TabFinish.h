#pragma once

#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ToolBar.h"
#include "steps/WizardStep.h"

namespace steps {

/// What happens once the answers stand: upload, export, documentation, audio, test pattern, and the
/// settings of the link to the receiver. The page asks nothing; each action has a button and a
/// label that does the same.
class TabFinish : public WizardStep {
 public:
  TabFinish(forms::Container& container, std::string strName);

  bool SetData() { return false; }
  bool iTab_SaveData() override { return false; }
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override {}
  void OtherTabClicked() {}

 private:
  void cmdUpload_Click();
  void cmdUpload_MouseDown(forms::MouseButton eButton);
  void cmdExport_Click();
  void cmdReports_Click();
  void cmdSettings_Click();
  void cmdTestPattern_Click();
  void tbrComm_ButtonClick();
  void tbrComm_ButtonMenuClick(const std::string& strTag);

  void ConnectEvents();
  void SetPictures();
  void SendFenletPassword();
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner"};
  forms::Label lblInstructions{*this, "lblInstructions",
                               "That is all the information this application needs to create your "
                               "system!  Click 'Upload System' to create and upload your system."};
  forms::CommandButton cmdUpload{*this, "cmdUpload"};
  forms::Label lblUpload{*this, "lblUpload", "Upload System"};
  forms::CommandButton cmdExport{*this, "cmdExport"};
  forms::Label lblExport{*this, "lblExport", "Export System"};
  forms::CommandButton cmdReports{*this, "cmdReports"};
  forms::Label lblReports{*this, "lblReports", "Documentation"};
  forms::CommandButton cmdSettings{*this, "cmdSettings"};
  forms::Label lblSettings{*this, "lblSettings", "Audio Settings"};
  forms::CommandButton cmdTestPattern{*this, "cmdTestPattern"};
  forms::Label lblTestPattern{*this, "lblTestPattern", "Video Test Pattern"};
  forms::ToolBar tbrComm{*this, "tbrComm"};
  forms::Label lblComm{*this, "lblComm", "Communication Settings"};
};

}  // namespace steps
