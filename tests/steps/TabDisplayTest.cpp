#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/ListBox.h"
#include "forms/TextBox.h"
#include "host/DeviceCommands.h"
#include "host/Numbers.h"
#include "steps/TabDisplay.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Buttons;
using forms::CheckBox;
using forms::Icon;
using forms::TextBox;
using tests::Wizard;

class TabDisplayTest : public testing::Test {
 protected:
  void run(const std::function<void()>& script) {
    wizard.run([&] {
      wizard.goTo("Display Device");
      script();
    });
  }

  void givenRelay() {
    wizard.chooseDisplay("Bravonne P2200");
    wizard.click("chkPowerRelay");
  }
  std::string selected(std::int16_t index) {
    return wizard.control<host::DeviceCommands>("ctlCommands(" + std::to_string(index) + ")")
        .get_Text();
  }
  bool isVisible(const std::string& name) { return wizard.control(name).isVisible(); }
  void expectRangeMessage(const std::string& text) { wizard.desktop.expectMessage("Orlena", text); }

  Wizard wizard;
};

TEST_F(TabDisplayTest, WithoutADeviceOnlyTheChoiceShows) {
  run([&] {
    for (const char* name : {"cmdProperties", "chkPowerRelay", "txtDelay(0)", "lblDelay(1)",
                             "ctlCommands(0)", "lblTransport(1)", "lblSwitch", "lblDescription"}) {
      EXPECT_FALSE(isVisible(name)) << name;
    }
    EXPECT_TRUE(isVisible("frameInfo"));
    EXPECT_TRUE(isVisible("cmdChoose"));
  });
}

TEST_F(TabDisplayTest, ChosenDeviceShowsItsCommands) {
  run([&] {
    wizard.chooseDisplay("Bravonne P2200");
    EXPECT_EQ(wizard.addIn->get_DisplayDeviceID(), wizard.device("Display Device")->get_ID());
    EXPECT_EQ(wizard.text("lblDescription"), wizard.device("Display Device")->get_Description());
    EXPECT_FALSE(isVisible("frameInfo"));
    EXPECT_EQ(selected(0), "RGB_1");
    EXPECT_EQ(selected(1), "Video_1");
    EXPECT_TRUE(wizard.control("cmdChoose").hasFocus());

    wizard.chooseDisplay("Talmerick Meridon 8000");
    EXPECT_EQ(selected(1), "[ Unassigned ]");
  });
}

TEST_F(TabDisplayTest, CancelledDialogLeavesAllAsItWas) {
  run([&] {
    const auto cancel = [&] {
      wizard.desktop.whenShown("DeviceDialog",
                               [&](forms::Form& dialog) { wizard.user.close(dialog); });
      wizard.click("cmdChoose");
    };
    cancel();
    EXPECT_TRUE(isVisible("frameInfo"));
    wizard.chooseDisplay("Bravonne P2200");
    wizard.document().MarkUnchanged();
    cancel();
    EXPECT_FALSE(isVisible("frameInfo"));
    EXPECT_EQ(selected(0), "RGB_1");
    EXPECT_FALSE(wizard.document().get_Modified());
  });
}

TEST_F(TabDisplayTest, SelectedCommandGoesToTheDevice) {
  run([&] {
    wizard.chooseDisplay("Bravonne P2200");
    wizard.document().MarkUnchanged();
    wizard.selectCommand("ctlCommands(0)", "RGB_2");
    EXPECT_EQ(wizard.device("Display Device")->GetCommandName("187"), "RGB_2");
    EXPECT_TRUE(wizard.document().get_Modified());
    wizard.selectCommand("ctlCommands(0)", "");
    EXPECT_EQ(wizard.device("Display Device")->GetCommandName("187"), "");
    wizard.goTo("Start");
    wizard.goTo("Display Device");
    EXPECT_EQ(selected(0), "[ Unassigned ]");
  });
}

TEST_F(TabDisplayTest, RelayComesAndGoesWithItsBox) {
  run([&] {
    givenRelay();
    EXPECT_EQ(wizard.text("txtDelay(0)"), "0");
    EXPECT_EQ(wizard.text("txtDelay(1)"), "120");
    EXPECT_TRUE(wizard.device("Power Relay"));
    wizard.enter("txtDelay(1)", "90");
    wizard.click("chkPowerRelay");
    EXPECT_FALSE(wizard.device("Power Relay"));
    EXPECT_EQ(wizard.text("txtDelay(1)"), "");
    EXPECT_FALSE(wizard.control("txtDelay(1)").isEnabled());
    wizard.click("chkPowerRelay");
    EXPECT_EQ(wizard.text("txtDelay(1)"), "90");
  });
}

TEST_F(TabDisplayTest, DelayIsReadWhenItsBoxIsLeft) {
  struct Case {
    const char* typed;
    const char* shown;
  };
  run([&] {
    givenRelay();
    for (const auto& [typed, shown] : {Case{"5s", "5"}, Case{"", "0"}, Case{"2.5", "2"},
                                       Case{"abc", "0"}, Case{"1234", "123"}}) {
      wizard.enter("txtDelay(0)", typed);
      wizard.user.moveFocus(wizard.control("txtDelay(1)"));
      EXPECT_EQ(wizard.text("txtDelay(0)"), shown) << typed;
      EXPECT_EQ(std::to_string(wizard.addIn->get_PowerRelayOnDelay()), shown) << typed;
    }
    wizard.document().MarkUnchanged();
    wizard.enter("txtDelay(0)", "123");
    wizard.user.moveFocus(wizard.control("txtDelay(1)"));
    EXPECT_FALSE(wizard.document().get_Modified());
  });
}

TEST_F(TabDisplayTest, BadDelayIsRefusedWithinTheStepAndResetOutsideIt) {
  run([&] {
    givenRelay();
    const std::string negative =
        "The time value for the power relay power off delay cannot be negative.\r\n";
    wizard.enter("txtDelay(1)", "-5");
    expectRangeMessage(negative + "Please set another value.");
    wizard.click("chkPowerRelay");
    EXPECT_TRUE(wizard.control("txtDelay(1)").hasFocus());
    EXPECT_TRUE(wizard.control<CheckBox>("chkPowerRelay").isChecked());
    EXPECT_EQ(wizard.text("txtDelay(1)"), "-5");
    EXPECT_EQ(wizard.addIn->get_PowerRelayOffDelay(), 120);

    expectRangeMessage(negative + "The value will be reset to 0.");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Audio Control");
    EXPECT_EQ(wizard.addIn->get_PowerRelayOffDelay(), 0);
  });
}

TEST_F(TabDisplayTest, ReplacedDisplayKeepsTheRelay) {
  run([&] {
    givenRelay();
    const std::int16_t before = wizard.addIn->get_DisplayDeviceID();
    wizard.chooseDisplay("Orvistel F42");
    EXPECT_NE(wizard.addIn->get_DisplayDeviceID(), before);
    EXPECT_TRUE(wizard.device("Power Relay"));
    EXPECT_TRUE(wizard.control<CheckBox>("chkPowerRelay").isChecked());
    EXPECT_EQ(selected(0), "SRC_PC1");
  });
}

TEST_F(TabDisplayTest, PropertyPagesFollowTheDevice) {
  run([&] {
    auto& step = dynamic_cast<steps::TabDisplay&>(wizard.step("Display Device"));
    EXPECT_EQ(step.GetTabs(0), std::vector<std::string>{host::progIDPageBasic});
    wizard.chooseDisplay("Bravonne P2200");
    EXPECT_EQ(step.GetTabs(wizard.addIn->get_DisplayDeviceID()).size(), 3U);
    EXPECT_TRUE(isVisible("cmdProperties"));

    wizard.desktop.whenShown("DeviceProperties", [&](forms::Form& dialog) {
      auto& description = dynamic_cast<TextBox&>(dialog.control("txtDescription"));
      wizard.user.replaceText(description, "At the front wall");
      wizard.user.click(dialog.control("cmdOK"));
    });
    wizard.click("cmdProperties");
    EXPECT_EQ(wizard.text("lblDescription"), "At the front wall");
  });
}

TEST_F(TabDisplayTest, HelpLinkShowsTheRequirements) {
  run([&] {
    wizard.click("lblDisplayHelp");
    EXPECT_EQ(wizard.desktop.helpCalls().back().topic, 120);
    EXPECT_EQ(wizard.desktop.helpCalls().back().helpFile, "Orlena.chm");
  });
}

}  // namespace
