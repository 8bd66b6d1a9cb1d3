#include "tests/steps/StepTest.h"

namespace {

class TabAudioControlTest : public tests::StepTest {
 protected:
  TabAudioControlTest() : StepTest("Audio Control") {}
};

TEST_F(TabAudioControlTest, EachClickStoresItsOwnAnswer) {
  using Case = std::pair<const char*, int>;
  onStep([&] {
    EXPECT_TRUE(isChosen("optMicrophone(0)"));
    for (const auto& [control, after] :
         {Case{"optVolumeKnob(1)", 100}, Case{"optMicrophone(1)", 110},
          Case{"chkMuteOnDigInp3", 111}, Case{"optVolumeKnob(0)", 11}, Case{"optMicrophone(0)", 1},
          Case{"chkMuteOnDigInp3", 0}}) {
      document().MarkUnchanged();
      click(control);
      EXPECT_EQ(100 * addIn->get_VolumeKnobControl() + 10 * addIn->get_MicModeControl() +
                    addIn->get_bMuteOnDigInp3(),
                after)
          << control;
      EXPECT_TRUE(isModified()) << control;
    }
    addIn->put_VolumeKnobControl(true);
    addIn->put_MicModeControl(true);
    fill();
    EXPECT_EQ(states({"optVolumeKnob(1)", "optMicrophone(1)"}), "xx");
  });
}

}  // namespace
