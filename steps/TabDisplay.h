#pragma once

#include <memory>
#include <string>
#include <vector>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "host/DeviceCommands.h"
#include "host/ctlImage.h"
#include "steps/HintFrame.h"
#include "steps/NumberBox.h"
#include "steps/WizardStep.h"

namespace steps {

/// The room's display: the device, its commands for the two inputs, and the power triggered relay.
/// Each action lands at once in the document or the settings, so that nothing is left to be saved.
class TabDisplay : public WizardStep {
 public:
  TabDisplay(forms::Container& container, std::string strName);

  bool SetData();
  void OtherTabClicked() { SetTabStops(false); }
  bool iTab_SaveData() override;
  bool iTab_VerifyData(bool) override { return false; }
  void iTab_TabClicked() override { SetTabStops(true); }

  /// The program ids of the host's property pages that a device has.
  std::vector<std::string> GetTabs(std::int16_t iDeviceID) const;

 private:
  void cmdChoose_Click();
  void cmdProperties_Click();
  void chkPowerRelay_Click();
  void lblDisplayHelp_Click();
  void ctlCommands_CommandChanged(std::int16_t Index);

  void HoldDelays();
  void ConnectEvents();
  void SetTabStops(bool bValue);
  void RefreshDeviceInfo();
  void ShowInfoFrame(bool bShow);
  void ShowDescription(bool bShow);
  void ShowDeviceControls(bool bShow);
  void LoadSwitchingCommands();
  void ShowDeviceProperties(std::int16_t iDeviceID);
  void SetPowerRelayControls(bool bEnabled);
  void ShowDelayRow(std::int16_t Index, bool bEnabled);
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " Display Device"};
  forms::Label Label1{*this, "Label1", "This step will configure the display device for the room."};
  forms::Label lblDisplayHelp{*this, "lblDisplayHelp", "Display Device Requirements"};
  forms::Frame Frame3{*this, "Frame3", "Display Device"};
  host::ctlImage ctlImageDisplay{Frame3, "ctlImageDisplay"};
  forms::CommandButton cmdChoose{Frame3, "cmdChoose", " Choose..."};
  forms::CommandButton cmdProperties{Frame3, "cmdProperties", "Properties..."};
  forms::Label lblDescriptionTag{Frame3, "lblDescriptionTag", "Description: "};
  forms::Label lblDescription{Frame3, "lblDescription"};
  forms::Label lblIOAssignmentTag{Frame3, "lblIOAssignmentTag", "IO Assignment: "};
  forms::Label lblIOAssignment{Frame3, "lblIOAssignment"};
  HintFrame frameInfo{Frame3, HintToChoose("Display Device")};
  forms::Frame frameCommand{*this, "frameCommand", "Switching Commands"};
  forms::Label lblSwitch{frameCommand, "lblSwitch",
                         "Select discrete switching commands for each video input."};
  forms::ControlArray<forms::Label> lblTransport{
      "lblTransport", {{0, frameCommand, "RGB Input :"}, {1, frameCommand, "Composite Input:"}}};
  forms::ControlArray<host::DeviceCommands> ctlCommands{"ctlCommands",
                                                        {{0, frameCommand}, {1, frameCommand}}};
  forms::CheckBox chkPowerRelay{*this, "chkPowerRelay", "Enable power triggered relay:"};
  forms::ControlArray<forms::Label> lblDelay{
      "lblDelay",
      {{0, *this, "Delay between Relay Closure and Display Power On:"},
       {1, *this, "Delay between Display Power Off and Relay Release:"}}};
  forms::ControlArray<NumberBox> txtDelay{"txtDelay", {{0, *this}, {1, *this}}};
  forms::ControlArray<forms::Label> lblDelaySeconds{"lblDelaySeconds",
                                                    {{0, *this, "seconds"}, {1, *this, "seconds"}}};

  bool m_bLoading = false;
};

}  // namespace steps
