#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/OptionButton.h"
#include "tests/wizard/Wizard.h"

namespace {

using tests::Wizard;

/// Volume, microphone and muting as digits.
std::string shown(const Wizard& wizard) {
  const auto chosen = [&](const char* name) {
    return std::to_string(static_cast<int>(wizard.control<forms::OptionButton>(name).isChosen()));
  };
  return chosen("optVolumeKnob(1)") + chosen("optMicrophone(1)") +
         std::to_string(wizard.control<forms::CheckBox>("chkMuteOnDigInp3").value());
}

std::string stored(const Wizard& wizard) {
  return std::to_string(static_cast<int>(wizard.addIn->get_VolumeKnobControl())) +
         std::to_string(static_cast<int>(wizard.addIn->get_MicModeControl())) +
         std::to_string(wizard.addIn->get_bMuteOnDigInp3());
}

TEST(TabAudioControlTest, EachClickStoresItsOwnAnswerAndFillingStoresNone) {
  struct Case {
    const char* control;
    const char* after;
  };
  Wizard wizard;
  wizard.run([&] {
    wizard.goTo("Audio Control");
    EXPECT_EQ(shown(wizard), "000");
    EXPECT_TRUE(wizard.control<forms::OptionButton>("optMicrophone(0)").isChosen());
    for (const auto& [control, after] :
         {Case{"optVolumeKnob(1)", "100"}, Case{"optMicrophone(1)", "110"},
          Case{"chkMuteOnDigInp3", "111"}, Case{"optVolumeKnob(0)", "011"},
          Case{"optMicrophone(0)", "001"}, Case{"chkMuteOnDigInp3", "000"}}) {
      wizard.document().MarkUnchanged();
      wizard.click(control);
      EXPECT_EQ(stored(wizard), after) << control;
      EXPECT_EQ(shown(wizard), after) << control;
      EXPECT_TRUE(wizard.document().get_Modified()) << control;
    }
    wizard.addIn->put_VolumeKnobControl(true);
    wizard.addIn->put_MicModeControl(true);
    wizard.addIn->put_bMuteOnDigInp3(1);
    wizard.document().MarkUnchanged();
    wizard.step("Audio Control").call("SetData");
    EXPECT_EQ(shown(wizard), "111");
    EXPECT_FALSE(wizard.document().get_Modified());
  });
}

}  // namespace
