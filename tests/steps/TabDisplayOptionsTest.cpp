#include "tests/steps/StepTest.h"

namespace {

constexpr const char* pulsedScreen = "Fallowmere Roll 180";
constexpr const char* pulsedLift = "Hoistrel HL-30";
constexpr const char* boxes[] = {"txtPulseTimeOn(0)", "txtPulseTimeOff(0)", "txtPulseTimeOn(1)",
                                 "txtPulseTimeOff(1)"};

class TabDisplayOptionsTest : public tests::StepTest {
 protected:
  TabDisplayOptionsTest() : StepTest("Display Options") {}

  void choose(int page, const std::string& device) { chooseDisplay(device, at("cmdChoose", page)); }
  void given(int page, const std::string& device) {
    click(at("chkInclude", page));
    choose(page, device);
  }

  static std::string at(const std::string& name, int page) {
    return name + "(" + std::to_string(page) + ")";
  }
  bool isShown(const std::string& name) { return isVisible(name + "(0)"); }
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
    EXPECT_EQ(page(), "oo--");
    EXPECT_FALSE(isVisible("cmdChoose(1)"));
    cancelDialog("cmdChoose(0)");
    EXPECT_EQ(page(), "oo--");
    EXPECT_FALSE(device("Screen"));

    choose(0, pulsedScreen);
    EXPECT_EQ(page(), "o-oo");
    EXPECT_EQ(addIn->get_ScreenDeviceID(), device("Screen")->get_ID());
    EXPECT_EQ(device("Screen")->get_Label(), "SCREEN");
    EXPECT_FALSE(device("Screen")->get_ShowInTree());
    EXPECT_EQ(text("lblDescription(0)"), device("Screen")->get_Description());
    EXPECT_EQ(text("lblIOAssignment(0)"), device("Screen")->get_IOAssignment());
    EXPECT_EQ(command("ctlPowerOn(0)"), "Down");
    EXPECT_EQ(command("ctlPowerOff(0)"), "Up");
    given(1, pulsedLift);
    EXPECT_EQ(device("Lift")->get_Label(), "LIFT");
    EXPECT_EQ(addIn->get_LiftDeviceID(), device("Lift")->get_ID());

    click("chkInclude(0)");
    EXPECT_FALSE(device("Screen"));
    EXPECT_EQ(addIn->get_ScreenDeviceID(), 0);
    EXPECT_EQ(page(), "----");
    EXPECT_TRUE(device("Lift"));
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
    EXPECT_EQ(device("Screen")->GetCommandName("42"), "UP");
    EXPECT_TRUE(isModified());
    EXPECT_FALSE(isShown("txtPulseTimeOn"));
  });
}

TEST_F(TabDisplayOptionsTest, AnotherDeviceStartsWithoutTimesAndLeavingGivesUpTheHiddenOnes) {
  onStep([&] {
    given(0, pulsedScreen);
    given(1, pulsedLift);
    for (const char* box : boxes) hold(box, "5");
    const std::int16_t screen = addIn->get_ScreenDeviceID();
    cancelDialog("cmdChoose(0)");
    EXPECT_EQ(addIn->get_ScreenDeviceID(), screen);
    EXPECT_TRUE(isShown("txtPulseTimeOn"));
    EXPECT_EQ(times(), (std::vector<float>{5, 5, 5, 5}));
    choose(0, "Fallowmere Taut 280");
    EXPECT_NE(addIn->get_ScreenDeviceID(), screen);
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
    EXPECT_FALSE(tested().control("chkInclude(0)").tabStop());
    clickInWindow("cmdBack");
    EXPECT_TRUE(control("chkInclude(0)").tabStop());
    EXPECT_TRUE(control("cmdChoose(0)").tabStop());
  });
}

TEST_F(TabDisplayOptionsTest, FillingTheStepFollowsTheSettingsAndChangesNothing) {
  onStep([&] {
    given(0, pulsedScreen);
    hold("txtPulseTimeOn(0)", "12");
    document().MarkUnchanged();
    fill();
    EXPECT_TRUE(isShown("cmdChoose"));
    EXPECT_EQ(text("txtPulseTimeOn(0)"), "12");
    EXPECT_FALSE(isModified());

    const std::int16_t screen = addIn->get_ScreenDeviceID();
    addIn->ResetSettings();
    fill();
    EXPECT_EQ(states({"chkInclude(0)", "cmdChoose(0)", "frameInfo(0)"}), "o--");
    EXPECT_TRUE(document().get_Devices()->ItemByID(screen));
  });
}

}  // namespace
