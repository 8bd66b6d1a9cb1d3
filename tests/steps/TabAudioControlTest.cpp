#include "tests/steps/StepTest.h"

namespace {

class TabAudioControlTest : public tests::StepTest {
 protected:
  TabAudioControlTest() : StepTest("Audio Control") {}

  /// Volume, microphone and muting as digits.
  std::string shown() {
    return std::to_string(isChosen("optVolumeKnob(1)")) +
           std::to_string(isChosen("optMicrophone(1)")) +
           std::to_string(isChecked("chkMuteOnDigInp3"));
  }
  std::string stored() {
    return std::to_string(addIn->get_VolumeKnobControl()) +
           std::to_string(addIn->get_MicModeControl()) +
           std::to_string(addIn->get_bMuteOnDigInp3());
  }
};

TEST_F(TabAudioControlTest, EachClickStoresItsOwnAnswerAndFillingStoresNone) {
  using Case = std::pair<const char*, const char*>;
  onStep([&] {
    EXPECT_EQ(shown(), "000");
    EXPECT_TRUE(isChosen("optMicrophone(0)"));
    for (const auto& [control, after] :
         {Case{"optVolumeKnob(1)", "100"}, Case{"optMicrophone(1)", "110"},
          Case{"chkMuteOnDigInp3", "111"}, Case{"optVolumeKnob(0)", "011"},
          Case{"optMicrophone(0)", "001"}, Case{"chkMuteOnDigInp3", "000"}}) {
      document().MarkUnchanged();
      click(control);
      EXPECT_EQ(stored(), after) << control;
      EXPECT_EQ(shown(), after) << control;
      EXPECT_TRUE(isModified()) << control;
    }
    addIn->put_VolumeKnobControl(true);
    addIn->put_MicModeControl(true);
    addIn->put_bMuteOnDigInp3(1);
    document().MarkUnchanged();
    fill();
    EXPECT_EQ(shown(), "111");
    EXPECT_FALSE(isModified());
  });
}

}  // namespace
