#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "host/DeviceCommands.h"
#include "host/iTab.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::CheckBox;
using tests::Wizard;

constexpr const char* stepName = "Display Options";
constexpr const char* pulsedScreen = "Fallowmere Roll 180";
constexpr const char* pulsedLift = "Hoistrel HL-30";
constexpr const char* boxes[] = {"txtPulseTimeOn(0)", "txtPulseTimeOff(0)", "txtPulseTimeOn(1)",
                                 "txtPulseTimeOff(1)"};

class TabDisplayOptionsTest : public testing::Test {
 protected:
  void run(const std::function<void()>& script) {
    wizard.run([&] {
      wizard.goTo(stepName);
      script();
    });
  }

  void choose(int page, const std::string& device) {
    wizard.desktop.whenShown("DeviceDialog", [this, device](forms::Form& dialog) {
      auto& list = dynamic_cast<forms::ListBox&>(dialog.control("lstDevices"));
      for (std::int32_t i = 0; i < list.count(); ++i) {
        if (list.text(i) == device) wizard.user.select(list, i);
      }
      EXPECT_EQ(list.shownText(), device);
      wizard.user.click(dialog.control("cmdOK"));
    });
    wizard.click(at("cmdChoose", page));
  }
  void cancelDialog(int page) {
    wizard.desktop.whenShown("DeviceDialog",
                             [&](forms::Form& dialog) { wizard.user.close(dialog); });
    wizard.click(at("cmdChoose", page));
  }
  void given(int page, const std::string& device) {
    wizard.click(at("chkInclude", page));
    choose(page, device);
  }
  void fill() { wizard.step(stepName).call("SetData"); }

  static std::string at(const std::string& name, int page) {
    return name + "(" + std::to_string(page) + ")";
  }
  bool isVisible(const std::string& name, int page) {
    return wizard.control(at(name, page)).isVisible();
  }
  std::string command(const std::string& selector, int page) {
    return wizard.control<host::DeviceCommands>(at(selector, page)).get_Text();
  }
  void hold(const std::string& box, const std::string& seconds) {
    wizard.enter(box, seconds);
    wizard.user.press(forms::keys::enter);
  }
  void givenTimes() {
    given(0, pulsedScreen);
    given(1, pulsedLift);
    for (const char* box : boxes) hold(box, "5");
  }
  /// The times of the screen's two commands and of the lift's.
  std::vector<float> times() {
    return {wizard.addIn->get_PowerOnPulseTime(0), wizard.addIn->get_PowerOffPulseTime(0),
            wizard.addIn->get_PowerOnPulseTime(1), wizard.addIn->get_PowerOffPulseTime(1)};
  }

  Wizard wizard;
};

TEST_F(TabDisplayOptionsTest, PageOpensStepByStep) {
  run([&] {
    for (const char* name : {"cmdChoose", "frameInfo", "ctlPowerOn"}) {
      EXPECT_FALSE(isVisible(name, 0)) << name;
    }
    wizard.click("chkInclude(0)");
    EXPECT_TRUE(isVisible("cmdChoose", 0));
    EXPECT_TRUE(isVisible("frameInfo", 0));
    EXPECT_FALSE(isVisible("cmdChoose", 1));
    cancelDialog(0);
    EXPECT_TRUE(isVisible("frameInfo", 0));
    EXPECT_FALSE(wizard.device("Screen"));

    choose(0, pulsedScreen);
    EXPECT_FALSE(isVisible("frameInfo", 0));
    EXPECT_EQ(wizard.addIn->get_ScreenDeviceID(), wizard.device("Screen")->get_ID());
    EXPECT_EQ(wizard.device("Screen")->get_Label(), "SCREEN");
    EXPECT_FALSE(wizard.device("Screen")->get_ShowInTree());
    EXPECT_EQ(wizard.text("lblDescription(0)"), wizard.device("Screen")->get_Description());
    EXPECT_EQ(wizard.text("lblIOAssignment(0)"), wizard.device("Screen")->get_IOAssignment());
    EXPECT_EQ(command("ctlPowerOn", 0), "Down");
    EXPECT_EQ(command("ctlPowerOff", 0), "Up");
    given(1, pulsedLift);
    EXPECT_EQ(wizard.device("Lift")->get_Label(), "LIFT");
    EXPECT_EQ(wizard.addIn->get_LiftDeviceID(), wizard.device("Lift")->get_ID());
  });
}

TEST_F(TabDisplayOptionsTest, OnlyAHeldCommandAsksForItsTime) {
  struct Case {
    const char* device;
    const char* on;
    const char* off;
    bool asksOn;
    bool asksOff;
  };
  run([&] {
    wizard.click("chkInclude(0)");
    for (const Case& it : {Case{"Veilhart Silent 200", "DOWN", "UP", false, false},
                           Case{"Drapewick Mixed 240", "Run_Down", "Home", true, false},
                           Case{"Veilhart Winder", "[ Unassigned ]", "WIND_UP", false, true},
                           Case{"Drapewick Trigger 220", "Hold_Down", "Let_Up", false, false},
                           Case{"Veilhart Stage 500", "DOWN", "UP", true, true}}) {
      choose(0, it.device);
      EXPECT_EQ(command("ctlPowerOn", 0), it.on) << it.device;
      EXPECT_EQ(command("ctlPowerOff", 0), it.off) << it.device;
      EXPECT_EQ(isVisible("txtPulseTimeOn", 0), it.asksOn) << it.device;
      EXPECT_EQ(isVisible("txtPulseTimeOff", 0), it.asksOff) << it.device;
    }
    wizard.document().MarkUnchanged();
    wizard.selectCommand("ctlPowerOn(0)", "HALT");
    EXPECT_EQ(wizard.device("Screen")->GetCommandName("43"), "HALT");
    EXPECT_EQ(wizard.device("Screen")->GetCommandName("42"), "UP");
    EXPECT_TRUE(wizard.document().get_Modified());
    EXPECT_FALSE(isVisible("txtPulseTimeOn", 0));
  });
}

TEST_F(TabDisplayOptionsTest, TimeIsWholeSecondsInItsRange) {
  struct Case {
    const char* typed;
    float stored;
  };
  run([&] {
    given(0, pulsedScreen);
    for (const auto& [typed, stored] :
         {Case{"2.5", 2}, Case{"3.5", 4}, Case{"655", 655}, Case{"7s", 7}, Case{"", 0}}) {
      hold("txtPulseTimeOff(0)", typed);
      EXPECT_EQ(times(), (std::vector<float>{0, stored, 0, 0})) << typed;
    }
    const std::string high =
        "The pulse time value for the Screen Off command is set too high (The maximum is 655)."
        "\r\n";
    hold("txtPulseTimeOff(0)", "9");
    wizard.enter("txtPulseTimeOff(0)", "656");
    wizard.desktop.expectMessage("Orlena", high + "Please set another value.");
    wizard.click("chkInclude(1)");
    EXPECT_TRUE(wizard.control("txtPulseTimeOff(0)").hasFocus());
    EXPECT_FALSE(wizard.control<CheckBox>("chkInclude(1)").isChecked());
    EXPECT_EQ(times()[1], 9);
    wizard.desktop.expectMessage("Orlena", high + "The value will be reset to 0.");
    host::AsTab(wizard.step(stepName)).iTab_SaveData();
    EXPECT_EQ(times()[1], 0);

    wizard.enter("txtPulseTimeOff(0)", "-1");
    wizard.desktop.expectMessage("Orlena",
                                 "The pulse time value for the Screen Off command cannot be "
                                 "negative.\r\nThe value will be reset to 0.");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Orlena Transmitters");
  });
}

TEST_F(TabDisplayOptionsTest, AnotherDeviceStartsWithoutTimesAndCancelKeepsThem) {
  run([&] {
    givenTimes();
    const std::int16_t screen = wizard.addIn->get_ScreenDeviceID();
    cancelDialog(0);
    EXPECT_EQ(wizard.addIn->get_ScreenDeviceID(), screen);
    EXPECT_TRUE(isVisible("txtPulseTimeOn", 0));
    EXPECT_EQ(times(), (std::vector<float>{5, 5, 5, 5}));
    choose(0, "Fallowmere Taut 280");
    EXPECT_NE(wizard.addIn->get_ScreenDeviceID(), screen);
    EXPECT_EQ(wizard.text("txtPulseTimeOn(0)"), "0");
    EXPECT_EQ(times(), (std::vector<float>{0, 0, 5, 5}));
  });
}

TEST_F(TabDisplayOptionsTest, LeavingGivesUpTheTimesThatAreHidden) {
  run([&] {
    givenTimes();
    wizard.selectCommand("ctlPowerOff(0)", "Stop");
    wizard.click("chkInclude(1)");
    EXPECT_EQ(times(), (std::vector<float>{5, 5, 5, 5}));
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(times(), (std::vector<float>{5, 0, 0, 0}));
    EXPECT_FALSE(wizard.step(stepName).control("chkInclude(0)").tabStop());
    wizard.clickInWindow("cmdBack");
    EXPECT_TRUE(wizard.control("chkInclude(0)").tabStop());
    EXPECT_TRUE(wizard.control("cmdChoose(0)").tabStop());
  });
}

TEST_F(TabDisplayOptionsTest, UncheckingRemovesTheDeviceAtOnce) {
  run([&] {
    given(0, pulsedScreen);
    given(1, pulsedLift);
    wizard.click("chkInclude(0)");
    EXPECT_FALSE(wizard.device("Screen"));
    EXPECT_EQ(wizard.addIn->get_ScreenDeviceID(), 0);
    for (const char* name : {"cmdChoose", "frameInfo", "lblDescription", "txtPulseTimeOn"}) {
      EXPECT_FALSE(isVisible(name, 0)) << name;
    }
    EXPECT_TRUE(wizard.device("Lift"));
    wizard.click("chkInclude(0)");
    EXPECT_TRUE(isVisible("frameInfo", 0));
    EXPECT_FALSE(wizard.device("Screen"));
  });
}

TEST_F(TabDisplayOptionsTest, FillingTheStepFollowsTheSettingsAndChangesNothing) {
  run([&] {
    given(0, pulsedScreen);
    hold("txtPulseTimeOn(0)", "12");
    wizard.document().MarkUnchanged();
    fill();
    EXPECT_TRUE(isVisible("cmdChoose", 0));
    EXPECT_EQ(wizard.text("txtPulseTimeOn(0)"), "12");
    EXPECT_FALSE(wizard.document().get_Modified());

    const std::int16_t device = wizard.addIn->get_ScreenDeviceID();
    wizard.addIn->ResetSettings();
    fill();
    EXPECT_FALSE(wizard.control<CheckBox>("chkInclude(0)").isChecked());
    EXPECT_FALSE(isVisible("cmdChoose", 0));
    EXPECT_FALSE(isVisible("frameInfo", 0));
    EXPECT_TRUE(wizard.document().get_Devices()->ItemByID(device));
  });
}

}  // namespace
