#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "host/DeviceCommands.h"
#include "host/Numbers.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Buttons;
using forms::CheckBox;
using forms::Icon;
using forms::OptionButton;
using tests::Wizard;

constexpr const char* toggleWarning =
    "Generally the command \"Power\" toggles the power on and off.\r\n\r\n"
    "Since this normally is not a discrete command verify it is discrete before assigning it here.";
constexpr const char* identicalWarning =
    "You have selected identical commands for power on and power off.\r\n\r\n"
    "Since these are not discrete commands this device will get out of sync with the other "
    "devices.\r\n\r\n"
    "Please choose discrete power commands to continue or select another power control method.";

class TabPowerTest : public testing::Test {
 protected:
  void run(const std::string& display, const std::function<void()>& script) {
    wizard.run([&] {
      wizard.goTo("Display Device");
      if (!display.empty()) wizard.chooseDisplay(display);
      wizard.goTo("Power Control");
      script();
    });
  }

  std::shared_ptr<host::Device> display() { return wizard.device("Display Device"); }
  bool isChosen(int mode) {
    return wizard.control<OptionButton>("optPower(" + std::to_string(mode) + ")").isChosen();
  }
  std::string selected(int index) {
    return wizard.control<host::DeviceCommands>("ctlCommands(" + std::to_string(index) + ")")
        .get_SelectedCommand();
  }
  bool isEnabled(const std::string& name) { return wizard.control(name).isEnabled(); }
  void expectWarning(const char* text) {
    wizard.desktop.expectMessage("Orlena", text, Buttons::ok, Icon::information);
  }

  Wizard wizard;
};

TEST_F(TabPowerTest, WithoutADeviceOnlyTheHintShows) {
  run("", [&] {
    EXPECT_FALSE(wizard.control("fraAll").isVisible());
    EXPECT_TRUE(wizard.control("frameInfo").isVisible());
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Power On/Off Lockout");
  });
}

TEST_F(TabPowerTest, DiscreteDisplayShowsItsCommands) {
  run("Bravonne P2200", [&] {
    EXPECT_TRUE(isChosen(host::powerDiscrete));
    EXPECT_EQ(selected(1), "Power_On");
    EXPECT_EQ(selected(2), "Power_Off");
    EXPECT_TRUE(wizard.control("chkSecondOff").isVisible());
    EXPECT_TRUE(isEnabled("chkSecondOff"));
    EXPECT_FALSE(isEnabled("txtSecondOff"));
    EXPECT_FALSE(isEnabled("optPower(1)"));
  });
}

TEST_F(TabPowerTest, ModeTheDeviceCannotOfferBecomesNone) {
  run("Bravonne P900 Pocket", [&] {
    EXPECT_TRUE(isChosen(host::powerSensing));
    wizard.goTo("Display Device");
    wizard.chooseDisplay("Talmerick Nocturne");
    display()->put_PowerControlType(host::powerSensing);
    wizard.document().MarkUnchanged();
    wizard.goTo("Power Control");
    EXPECT_TRUE(isChosen(host::powerNone));
    EXPECT_EQ(display()->get_PowerControlType(), host::powerNone);
    EXPECT_TRUE(wizard.document().get_Modified());
  });
}

TEST_F(TabPowerTest, LabelBesideAButtonWorksAsTheButton) {
  run("Bravonne P2200", [&] {
    wizard.click("lblPower(0)");
    EXPECT_TRUE(isChosen(host::powerNone));
    EXPECT_TRUE(wizard.control("optPower(0)").hasFocus());
    EXPECT_EQ(display()->get_PowerControlType(), host::powerNone);
    wizard.click("lblPower(1)");
    EXPECT_TRUE(isChosen(host::powerNone));
  });
}

TEST_F(TabPowerTest, DeviceWithoutSecondOffNeverShowsIt) {
  run("Bravonne P3500 Wide", [&] {
    for (const char* name : {"chkSecondOff", "ctlCommands(3)", "txtSecondOff", "lblSecondOff(0)"}) {
      EXPECT_FALSE(wizard.control(name).isVisible()) << name;
    }
    EXPECT_FALSE(wizard.control("ctlCommands(3)").tabStop());
  });
}

TEST_F(TabPowerTest, SecondOffStartsAsThePowerOffCommandAndStoresItsDelay) {
  run("Bravonne P2200", [&] {
    wizard.click("chkSecondOff");
    EXPECT_EQ(selected(3), "Power_Off");
    EXPECT_EQ(wizard.addIn->get_sSecondPowerOff(), "Power_Off");
    EXPECT_EQ(wizard.addIn->get_bSecondPowerOff(), 1);
    EXPECT_TRUE(wizard.control("txtSecondOff").hasFocus());
    EXPECT_EQ(wizard.text("txtSecondOff"), "");
    wizard.enter("txtSecondOff", "1.5");
    wizard.user.press(forms::keys::enter);
    EXPECT_EQ(wizard.addIn->get_iSecondPowerOff(), 2);
    wizard.enter("txtSecondOff", "9e9");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.addIn->get_iSecondPowerOff(), 32767);
    wizard.clickInWindow("cmdBack");
    wizard.enter("txtSecondOff", "");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.addIn->get_iSecondPowerOff(), 0);
  });
}

TEST_F(TabPowerTest, LeavingDiscreteKeepsTheSecondCommandForTheReturn) {
  run("Bravonne P2200", [&] {
    wizard.click("chkSecondOff");
    wizard.selectCommand("ctlCommands(3)", "Menu");
    wizard.click("optPower(0)");
    EXPECT_EQ(selected(1), "");
    EXPECT_FALSE(isEnabled("ctlCommands(1)"));
    EXPECT_FALSE(wizard.control<CheckBox>("chkSecondOff").isChecked());
    EXPECT_FALSE(isEnabled("chkSecondOff"));
    EXPECT_EQ(display()->GetCommandName("166"), "Power_On");
    EXPECT_EQ(wizard.addIn->get_bSecondPowerOff(), 1);
    wizard.click("optPower(2)");
    EXPECT_EQ(selected(1), "Power_On");
    EXPECT_TRUE(wizard.control<CheckBox>("chkSecondOff").isChecked());
    EXPECT_EQ(selected(3), "Menu");
  });
}

TEST_F(TabPowerTest, ClearedPowerOffCommandTakesTheSecondAlong) {
  run("Bravonne P2200", [&] {
    wizard.click("chkSecondOff");
    wizard.selectCommand("ctlCommands(2)", "");
    EXPECT_FALSE(wizard.control<CheckBox>("chkSecondOff").isChecked());
    EXPECT_FALSE(isEnabled("chkSecondOff"));
    EXPECT_EQ(wizard.addIn->get_bSecondPowerOff(), 0);
    EXPECT_EQ(wizard.addIn->get_sSecondPowerOff(), "");
    EXPECT_EQ(display()->GetCommandName("165"), "");
  });
}

TEST_F(TabPowerTest, WarningsInformAndRefuseNothing) {
  run("Pellucor Board Go", [&] {
    wizard.click("optPower(2)");
    expectWarning(toggleWarning);
    wizard.selectCommand("ctlCommands(1)", "power");
    expectWarning(toggleWarning);
    expectWarning(identicalWarning);
    wizard.selectCommand("ctlCommands(2)", "power");
    EXPECT_EQ(display()->GetCommandName("166"), "power");
    EXPECT_EQ(display()->GetCommandName("165"), "power");
    wizard.selectCommand("ctlCommands(1)", "");
    expectWarning(identicalWarning);
    wizard.selectCommand("ctlCommands(2)", "");
  });
}

TEST_F(TabPowerTest, DiagramIsTheSecondPreview) {
  run("Bravonne P2200", [&] {
    wizard.desktop.whenShown("frmPreview", [&](forms::Form& preview) {
      EXPECT_EQ(preview.size(), (forms::Size{605 * 15, 828 * 15}));
      EXPECT_EQ(preview.picture().file().filename(), "preview-2.svg");
      wizard.user.press(forms::keys::escape);
    });
    wizard.click("lblDiagram");
    wizard.goTo("Start");
    wizard.desktop.whenShown("frmPreview", [&](forms::Form& preview) {
      EXPECT_EQ(preview.size(), (forms::Size{801 * 15, 584 * 15}));
      EXPECT_EQ(preview.caption(), "Orlena");
      wizard.user.press(forms::keys::escape);
    });
    wizard.click("lblPreview");
  });
}

}  // namespace
