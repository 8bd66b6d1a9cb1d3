#include "tests/steps/StepTest.h"

namespace {

constexpr const char* pulsedScreen = "Fallowmere Roll 180";
constexpr const char* pulsedLift = "Hoistrel HL-30";
constexpr const char* boxes[] = {"txtPulseTimeOn(0)", "txtPulseTimeOff(0)", "txtPulseTimeOn(1)",
                                 "txtPulseTimeOff(1)"};

class TabDisplayOptionsTest : public tests::StepTest {
 protected:
  TabDisplayOptionsTest() : StepTest("Display Options") {}

  void choose(int page, const std::string& device) {
    chooseDisplay(device, "cmdChoose(" + std::to_string(page) + ")");
  }
  void given(int page, const std::string& device) {
    click("chkInclude(" + std::to_string(page) + ")");
    choose(page, device);
  }
  /// The times of the screen's two commands and of the lift's.
  std::vector<float> times() {
    return {addIn->get_PowerOnPulseTime(0), addIn->get_PowerOffPulseTime(0),
            addIn->get_PowerOnPulseTime(1), addIn->get_PowerOffPulseTime(1)};
  }
};

TEST_F(TabDisplayOptionsTest, PageOpensStepByStepAndUncheckingRemovesTheDeviceAtOnce) {
  onStep([&] {
    const auto page = [&] {
      return states({"cmdChoose(0)", "frameInfo(0)", "lblDescription(0)", "txtPulseTimeOn(0)"});
    };
    EXPECT_EQ(page(), "----");
    click("chkInclude(0)");
    cancelDialog("cmdChoose(0)");
    EXPECT_EQ(page(), "oo--");
    EXPECT_FALSE(isVisible("cmdChoose(1)") || device("Screen"));

    choose(0, pulsedScreen);
    EXPECT_EQ(page(), "o-oo");
    EXPECT_EQ(text("lblDescription(0)"), device("Screen")->get_Description());
    EXPECT_EQ(text("lblIOAssignment(0)"), device("Screen")->get_IOAssignment());
    given(1, pulsedLift);
    click("chkInclude(0)");
    EXPECT_EQ(page(), "----");
    EXPECT_EQ(addIn->get_ScreenDeviceID(), 0);
    EXPECT_TRUE(!device("Screen") && device("Lift"));
  });
}

TEST_F(TabDisplayOptionsTest, OnlyAHeldCommandAsksForItsTime) {
  struct Case {
    const char *device, *on, *off, *asks;
  };
  onStep([&] {
    click("chkInclude(0)");
    for (const Case& it : {Case{"Veilhart Silent 200", "DOWN", "UP", "--"},
                           Case{"Drapewick Mixed 240", "Run_Down", "Home", "o-"},
                           Case{"Veilhart Winder", "[ Unassigned ]", "WIND_UP", "-o"},
                           Case{"Drapewick Trigger 220", "Hold_Down", "Let_Up", "--"},
                           Case{"Veilhart Stage 500", "DOWN", "UP", "oo"}}) {
      choose(0, it.device);
      EXPECT_EQ(command("ctlPowerOn(0)"), it.on) << it.device;
      EXPECT_EQ(command("ctlPowerOff(0)"), it.off) << it.device;
      EXPECT_EQ(states({"txtPulseTimeOn(0)", "txtPulseTimeOff(0)"}), it.asks) << it.device;
    }
    document().MarkUnchanged();
    selectCommand("ctlPowerOn(0)", "HALT");
    EXPECT_EQ(device("Screen")->GetCommandName("43"), "HALT");
    EXPECT_TRUE(isModified());
    EXPECT_FALSE(isVisible("txtPulseTimeOn(0)"));
  });
}

TEST_F(TabDisplayOptionsTest, AnotherDeviceStartsWithoutTimesAndLeavingGivesUpTheHiddenOnes) {
  onStep([&] {
    given(0, pulsedScreen);
    given(1, pulsedLift);
    for (const char* box : boxes) hold(box, "5");
    cancelDialog("cmdChoose(0)");
    EXPECT_TRUE(isVisible("txtPulseTimeOn(0)"));
    EXPECT_EQ(times(), (std::vector<float>{5, 5, 5, 5}));
    choose(0, "Fallowmere Taut 280");
    EXPECT_EQ(text("txtPulseTimeOn(0)"), "0");
    EXPECT_EQ(times(), (std::vector<float>{0, 0, 5, 5}));

    choose(0, pulsedScreen);
    for (const char* box : boxes) hold(box, "5");
    selectCommand("ctlPowerOff(0)", "Stop");
    click("chkInclude(1)");
    EXPECT_EQ(times(), (std::vector<float>{5, 5, 5, 5}));
    document().MarkUnchanged();
    next();
    EXPECT_EQ(times(), (std::vector<float>{5, 0, 0, 0}));
    EXPECT_TRUE(isModified());
  });
}

}  // namespace
