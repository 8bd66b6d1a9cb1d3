#pragma once

#include <string>

#include "forms/CheckBox.h"
#include "forms/ControlArray.h"
#include "forms/Frame.h"
#include "forms/Label.h"
#include "forms/OptionButton.h"
#include "host/ctlImage.h"
#include "steps/WizardStep.h"

namespace steps {

/// What the volume knob controls, when the microphone is live, and whether a contact closure mutes
/// the audio. It needs no device, and each click lands at once.
class TabAudioControl : public WizardStep {
 public:
  TabAudioControl(forms::Container& container, std::string strName);

  /// False: no system is open, and nothing was touched.
  bool SetData();
  /// Leaving is never refused.
  void BeforeTabChange(bool&) { iTab_SaveData(); }
  void OtherTabClicked() {}
  bool iTab_SaveData() override { return true; }
  bool iTab_VerifyData(bool) override { return true; }
  void iTab_TabClicked() override {}

 private:
  void optVolumeKnob_Click(std::int16_t Index);
  void optMicrophone_Click(std::int16_t Index);
  void chkMuteOnDigInp3_Click();

  void ConnectEvents();
  void LayOut();

  forms::Label lblBanner{*this, "lblBanner", " Audio Control"};
  forms::Frame fraVolume{*this, "fraVolume", "Volume Knob"};
  forms::ControlArray<forms::OptionButton> optVolumeKnob{
      "optVolumeKnob", {{1, fraVolume, "Master volume"}, {0, fraVolume, "Program volume"}}};
  forms::Frame fraMic{*this, "fraMic", "Microphone Audio"};
  forms::ControlArray<forms::OptionButton> optMicrophone{
      "optMicrophone",
      {{1, fraMic, "Always active"}, {0, fraMic, "Only active when system is on"}}};
  forms::ControlArray<host::ctlImage> ctlImage{"ctlImage", {{0, fraVolume}, {1, fraMic}}};
  forms::ControlArray<forms::Label> lblSelection{
      "lblSelection",
      {{0, fraVolume, "This selection is only applicable to OL-RXVn-M receivers."},
       {1, fraMic, "This selection is only applicable to OL-RXVn-M receivers."}}};
  forms::CheckBox chkMuteOnDigInp3{
      *this, "chkMuteOnDigInp3",
      "Mute the audio when a contact closure is detected on digital input 3"};

  bool m_bLoading = false;
};

}  // namespace steps
