#pragma once

#include <memory>
#include <string>

#include "forms/CheckBox.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/OptionButton.h"
#include "host/DeviceCommands.h"
#include "steps/HintFrame.h"
#include "steps/NumberBox.h"
#include "steps/WizardStep.h"

namespace steps {

/// How the display is powered, with which commands, and whether a second Power Off command follows.
/// The page is filled each time it is entered; each change lands at once.
///
/// The index of a power button is the power mode that it stands for; the selectors 1, 2 and 3 are
/// the commands for power on, for power off and the second one for power off.
class TabPower : public WizardStep {
 public:
  TabPower(forms::Container& container, std::string strName);

  bool SetData();
  void OtherTabClicked();
  bool iTab_SaveData() override { return false; }
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override;

 private:
  void optPower_Click(std::int16_t Index);
  void lblPower_Click(std::int16_t Index);
  void chkSecondOff_Click();
  void ctlCommands_CommandChanged(std::int16_t Index);
  void lblDiagram_Click();

  void ConnectEvents();
  void SetTabStops(bool bValue);
  void UpdatePowerSensing();
  void ShowPowerCommands();
  void EmptyPowerCommands();
  void LoadPowerCommands();
  void EnableSecondOff(bool bEnabled);
  void WarnOfCommands(std::int16_t Index) const;
  void StoreCommand(std::int16_t Index);
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " Power Control"};
  forms::Frame fraAll{*this, "fraAll"};
  forms::Label Label1{fraAll, "Label1", "Configure the Power Control for your Display Device:"};
  forms::Label lblInstructions{fraAll, "lblInstructions",
                               "Select the statement that best describes how you wish to control "
                               "the power for the selected device:"};
  forms::ControlArray<forms::OptionButton> optPower{
      "optPower",
      {{2, fraAll, "&Discrete   "}, {1, fraAll, "&Power Sensing"}, {0, fraAll, "N&one"}}};
  forms::Label lblRecommended{fraAll, "lblRecommended", "(Recommended)"};
  forms::Label lblNotRecommended{fraAll, "lblNotRecommended", "(Not Recommended)"};
  forms::ControlArray<forms::Label> lblPower{"lblPower", {{2, fraAll}, {1, fraAll}, {0, fraAll}}};
  forms::ControlArray<forms::Label> lblCommands{
      "lblCommands", {{1, fraAll, "Power On command:"}, {2, fraAll, "Power Off command:"}}};
  forms::ControlArray<host::DeviceCommands> ctlCommands{"ctlCommands",
                                                        {{1, fraAll}, {2, fraAll}, {3, fraAll}}};
  forms::CheckBox chkSecondOff{fraAll, "chkSecondOff", "Send second        Power Off command"};
  forms::ControlArray<forms::Label> lblSecondOff{"lblSecondOff",
                                                 {{0, fraAll, "after"}, {1, fraAll, "seconds"}}};
  NumberBox txtSecondOff{fraAll, "txtSecondOff"};
  forms::Label lblDiagram{fraAll, "lblDiagram", "Show Diagram..."};
  HintFrame frameInfo{*this, HintToAddDisplay("Power Control")};

  bool m_bLoading = false;
  bool m_bSecondOff = false;
};

}  // namespace steps
