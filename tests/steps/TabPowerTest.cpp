#include "host/Numbers.h"
#include "tests/steps/StepTest.h"

namespace {

using forms::Icon;

constexpr const char* toggleWarning =
    "Generally the command \"Power\" toggles the power on and off.\r\n\r\n"
    "Since this normally is not a discrete command verify it is discrete before assigning it here.";
constexpr const char* identicalWarning =
    "You have selected identical commands for power on and power off.\r\n\r\n"
    "Since these are not discrete commands this device will get out of sync with the other "
    "devices.\r\n\r\n"
    "Please choose discrete power commands to continue or select another power control method.";

class TabPowerTest : public tests::StepTest {
 protected:
  TabPowerTest() : StepTest("Power Control") {}

  std::shared_ptr<host::Device> display() { return device("Display Device"); }
  bool isMode(int mode) { return isChosen("optPower(" + std::to_string(mode) + ")"); }
  std::string selected(int index) {
    return control<host::DeviceCommands>("ctlCommands(" + std::to_string(index) + ")")
        .get_SelectedCommand();
  }
  void expectWarning(const char* text) { expectMessage(text, Icon::information); }
};

TEST_F(TabPowerTest, ShowsTheHintOrTheCommandsAndASecondOffOnlyWhereThereIsOne) {
  onStep([&] {
    EXPECT_EQ(states({"fraAll", "frameInfo"}), "-o");
    next();
    enterWith("Bravonne P2200");
    EXPECT_EQ(selected(1) + selected(2), "Power_OnPower_Off");
    EXPECT_EQ(states({"optPower(2)", "optPower(1)", "chkSecondOff", "txtSecondOff"}), "x.o.");
    enterWith("Bravonne P3500 Wide");
    EXPECT_EQ(states({"chkSecondOff", "ctlCommands(3)", "txtSecondOff", "lblSecondOff(0)"}),
              "----");
    EXPECT_FALSE(control("ctlCommands(3)").tabStop());
  });
}

TEST_F(TabPowerTest, ModeTheDeviceCannotOfferBecomesNoneAndLabelsWorkAsTheirButtons) {
  onStep("Bravonne P900 Pocket", [&] {
    EXPECT_TRUE(isMode(host::powerSensing));
    goTo("Display Device");
    chooseDisplay("Talmerick Nocturne");
    display()->put_PowerControlType(host::powerSensing);
    document().MarkUnchanged();
    enterWith("");
    EXPECT_TRUE(isMode(host::powerNone));
    EXPECT_EQ(display()->get_PowerControlType(), host::powerNone);
    EXPECT_TRUE(isModified());
    enterWith("Bravonne P2200");
    click("lblPower(0)");
    EXPECT_TRUE(control("optPower(0)").hasFocus());
    EXPECT_EQ(display()->get_PowerControlType(), host::powerNone);
    click("lblPower(1)");
    EXPECT_TRUE(isMode(host::powerNone));
  });
}

TEST_F(TabPowerTest, SecondOffStartsAsThePowerOffCommandAndGoesWithDisplayAndSystem) {
  onStep("Bravonne P2200", [&] {
    click("chkSecondOff");
    EXPECT_EQ(selected(3), "Power_Off");
    EXPECT_EQ(addIn->get_sSecondPowerOff(), "Power_Off");
    EXPECT_EQ(addIn->get_bSecondPowerOff(), 1);
    EXPECT_TRUE(control("txtSecondOff").hasFocus());
    enter("txtSecondOff", "9");
    enterWith("Bravonne P3500 Wide");
    EXPECT_EQ(addIn->get_bSecondPowerOff(), 0);
    enterWith("Bravonne P2200");
    EXPECT_EQ(states({"chkSecondOff", "txtSecondOff"}), "o.");
    EXPECT_EQ(selected(3) + text("txtSecondOff"), "Power_Off9") << "kept";

    clickInWindow("cmdSave");
    clickInWindow("cmdNew");
    goTo("Power Control");
    next();
    EXPECT_EQ(addIn->get_iSecondPowerOff(), 0) << "the delay stays with its system";
    EXPECT_FALSE(isModified());
  });
}

TEST_F(TabPowerTest, LeavingDiscreteKeepsTheSecondCommandAndAClearedPowerOffDoesNot) {
  onStep("Bravonne P2200", [&] {
    click("chkSecondOff");
    selectCommand("ctlCommands(3)", "Menu");
    click("optPower(0)");
    EXPECT_EQ(selected(1), "");
    EXPECT_EQ(states({"ctlCommands(1)", "chkSecondOff"}), "..");
    EXPECT_EQ(display()->GetCommandName("166"), "Power_On");
    EXPECT_EQ(addIn->get_bSecondPowerOff(), 1);
    click("optPower(2)");
    EXPECT_TRUE(isChecked("chkSecondOff"));
    EXPECT_EQ(selected(1) + selected(3), "Power_OnMenu");

    selectCommand("ctlCommands(2)", "");
    EXPECT_EQ(states({"chkSecondOff"}), ".");
    EXPECT_EQ(addIn->get_bSecondPowerOff(), 0);
    EXPECT_EQ(addIn->get_sSecondPowerOff() + display()->GetCommandName("165"), "");
  });
}

TEST_F(TabPowerTest, WarningsInformAndRefuseNothing) {
  onStep("Pellucor Board Go", [&] {
    click("optPower(2)");
    expectWarning(toggleWarning);
    selectCommand("ctlCommands(1)", "power");
    expectWarning(toggleWarning);
    expectWarning(identicalWarning);
    selectCommand("ctlCommands(2)", "power");
    EXPECT_EQ(display()->GetCommandName("166") + display()->GetCommandName("165"), "powerpower");
    selectCommand("ctlCommands(1)", "");
    expectWarning(identicalWarning);
    selectCommand("ctlCommands(2)", "");
  });
}

TEST_F(TabPowerTest, DiagramIsTheSecondPreview) {
  onStep("Bravonne P2200", [&] {
    desktop.whenShown("frmPreview", [&](forms::Form& preview) {
      EXPECT_EQ(preview.picture().file().filename(), "preview-2.svg");
      user.press(forms::keys::escape);
    });
    click("lblDiagram");
  });
}

}  // namespace
