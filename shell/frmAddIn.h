#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "addin/WizardWindow.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/Line.h"
#include "host/ctlSteps.h"
#include "host/iTab.h"
#include "shell/TabWizard.h"

namespace shell {

/// The wizard's main window: the list of steps, the steps, the file buttons, and Back, Next, Finish
/// and Help.
class frmAddIn : public forms::Form, public addin::WizardWindow {
 public:
  frmAddIn();

  void ShowModal(forms::Form* oOwner) override { showModal(oOwner); }
  std::int32_t Hwnd() const override { return windowHandle(); }
  bool get_CanFinish() const override { return cmdFinish.isEnabled(); }
  void put_CanFinish(bool bCanFinish) override { cmdFinish.setEnabled(bCanFinish); }
  const std::vector<forms::UserControl*>& GetControls() const override { return m_colSteps; }
  bool HasOpenEdit() const override;
  void TakeOpenEdit() override { focus().moveByUser(cmdSave); }
  void TellUnsaved(host::UnsavedAnswers& unsaved) const override;
  void ResumeWork(const host::Whereabouts& whereabouts) override;
  void ShowStep(std::int16_t iStep) override { ctlTabs.SetCurrentTab(iStep); }
  bool SaveData() override;

 private:
  void Form_Load();
  void Form_Activate();
  void Form_QueryUnload(bool& Cancel);
  void Form_Unload();
  void Form_KeyDown(forms::KeyDown& key);

  void cmdNew_Click();
  void cmdFolder_Click();
  void cmdSave_Click();
  void cmdUserPath_Click();
  void cmdBack_Click();
  void cmdNext_Click();
  void cmdFinish_Click();
  void cmdHelp_Click();
  void ctlSteps_OnStepClicked(std::int16_t iStep);
  void ctlTabs_OnTabChanged(std::int16_t iCurrentTab);

  void LoadSteps();
  void LayOut();
  bool StartWizard();
  void FailToStart();
  void SetStepsData();
  void ShowSteps(bool bShow);
  void SetBackNextState();
  void TurnPage(std::int16_t iOffset);
  /// Raises Error 9 for a step that there is not.
  host::iTab& Tab(std::int16_t iStep) const;
  std::int16_t LastTab() const { return static_cast<std::int16_t>(m_colSteps.size() - 1); }

  host::ctlSteps ctlSteps{*this, "ctlSteps"};
  TabWizard ctlTabs{*this, "ctlTabs"};
  forms::Line Line1{*this, "Line1"};
  forms::Frame Frame1{*this, "Frame1"};
  forms::CommandButton cmdNew{Frame1, "cmdNew"};
  forms::CommandButton cmdFolder{Frame1, "cmdFolder"};
  forms::CommandButton cmdSave{Frame1, "cmdSave"};
  forms::CommandButton cmdUserPath{Frame1, "cmdUserPath"};
  forms::Label lblSaved{*this, "lblSaved"};
  forms::CommandButton cmdHelp{*this, "cmdHelp", "&Help"};
  forms::CommandButton cmdBack{*this, "cmdBack", "< &Back"};
  forms::CommandButton cmdNext{*this, "cmdNext", "&Next >"};
  forms::CommandButton cmdFinish{*this, "cmdFinish", "&Finish"};

  std::int16_t m_iCurrentTab = 0;
  std::vector<forms::UserControl*> m_colSteps;
  bool m_bActivated = false;
  std::string m_strOldHelpFile;
};

}  // namespace shell
