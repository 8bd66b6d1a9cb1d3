#pragma once

#include <string>

#include "forms/CheckBox.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/OptionButton.h"
#include "host/ctlImage.h"
#include "steps/HintFrame.h"
#include "steps/NumberBox.h"
#include "steps/WizardStep.h"

namespace steps {

/// How long the room stays locked while the display warms up and cools down, and whether a contact
/// closure decides about its power. It asks only where the display's power is controlled; the
/// answers outlive a display whose power isn't.
///
/// The index of a contact button is the value that it stands for; time 1 is that of power on.
class TabPowerOnOffLockout : public WizardStep {
 public:
  TabPowerOnOffLockout(forms::Container& container, std::string strName);

  bool SetData();
  /// Leaving is never refused.
  void BeforeTabChange(bool&) {}
  void OtherTabClicked();
  bool iTab_SaveData() override;
  bool iTab_VerifyData(bool) override { return false; }
  void iTab_TabClicked() override;

 private:
  void chkContact_Click();
  void optContact_Click();

  void HoldTimes();
  void ConnectEvents();
  void EnableContactOptions(bool bEnabled);
  void SaveContactOption();
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " Power Lockout"};
  forms::Frame frameDevice{*this, "frameDevice", "Power On/Off Lockout"};
  forms::Frame fraContact{*this, "fraContact", "Power On/Off Contact Closure Control"};
  forms::ControlArray<host::ctlImage> ctlImage{"ctlImage", {{0, frameDevice}, {1, fraContact}}};
  forms::Label lblDescriptionTag{frameDevice, "lblDescriptionTag",
                                 "Locks the system for the specified duration to allow the display "
                                 "device to warm-up and/or cool-down."};
  forms::ControlArray<forms::Label> lblSeconds{"lblSeconds",
                                               {{3, frameDevice, "Power On Lockout for"},
                                                {0, frameDevice, "seconds"},
                                                {2, frameDevice, "Power Off Lockout for"},
                                                {1, frameDevice, "seconds"}}};
  forms::ControlArray<NumberBox> txtPowerLockoutTime{"txtPowerLockoutTime",
                                                     {{1, frameDevice}, {2, frameDevice}}};
  forms::CheckBox chkContact{
      fraContact, "chkContact",
      "Only allow System Power On if a contact closure is detected on digital input 2."};
  forms::Label lblContact{fraContact, "lblContact",
                          "If contact closure is removed while the System is On:"};
  forms::ControlArray<forms::OptionButton> optContact{
      "optContact",
      {{1, fraContact, "Continue normal operation"}, {0, fraContact, "Power Off immediately"}}};
  HintFrame frameInfo{*this, {}, {.strSign = "ctlInfoImage"}};

  bool m_bLoading = false;
};

}  // namespace steps
