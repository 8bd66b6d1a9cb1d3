#include "steps/TabDisplay.h"

#include "host/Numbers.h"
#include "tests/steps/StepTest.h"

namespace {

class TabDisplayTest : public tests::StepTest {
 protected:
  TabDisplayTest() : StepTest("Display Device") {}

  std::string selected(int index) { return command("ctlCommands(" + std::to_string(index) + ")"); }
};

TEST_F(TabDisplayTest, ChosenDeviceShowsItsCommandsAndPagesAndCancelKeepsAll) {
  onStep([&] {
    auto& step = dynamic_cast<steps::TabDisplay&>(tested());
    const auto page = [&] {
      return states({"cmdProperties", "chkPowerRelay", "txtDelay(0)", "ctlCommands(0)",
                     "lblTransport(1)", "lblSwitch", "lblDescription", "frameInfo", "cmdChoose"});
    };
    cancelDialog("cmdChoose");
    EXPECT_EQ(page(), "-------oo");
    EXPECT_EQ(step.GetTabs(0), std::vector<std::string>{host::progIDPageBasic});

    chooseDisplay("Bravonne P2200");
    EXPECT_EQ(page(), "oo.oooo-o");
    EXPECT_EQ(step.GetTabs(addIn->get_DisplayDeviceID()).size(), 3U);
    EXPECT_EQ(text("lblDescription"), device("Display Device")->get_Description());
    EXPECT_EQ(selected(0) + " " + selected(1), "RGB_1 Video_1");
    EXPECT_TRUE(control("cmdChoose").hasFocus());
    document().MarkUnchanged();
    cancelDialog("cmdChoose");
    chooseDisplay("Bravonne P2200");
    EXPECT_EQ(page(), "oo.oooo-o");
    EXPECT_FALSE(isModified()) << "it is there already";

    chooseDisplay("Talmerick Meridon 8000");
    EXPECT_EQ(selected(1), "[ Unassigned ]");
  });
}

TEST_F(TabDisplayTest, RelayComesAndGoesWithItsBoxAndStaysWithAnotherDisplay) {
  onStep("Bravonne P2200", [&] {
    click("chkPowerRelay");
    EXPECT_EQ(text("txtDelay(0)") + " " + text("txtDelay(1)"), "0 120");
    EXPECT_TRUE(device("Power Relay"));
    enter("txtDelay(1)", "90");
    click("chkPowerRelay");
    EXPECT_FALSE(device("Power Relay"));
    EXPECT_EQ(states({"txtDelay(1)"}) + text("txtDelay(1)"), ".");
    click("chkPowerRelay");
    EXPECT_EQ(text("txtDelay(1)"), "90");

    chooseDisplay("Orvistel F42");
    EXPECT_TRUE(device("Power Relay"));
    EXPECT_EQ(states({"chkPowerRelay"}) + selected(0), "xSRC_PC1");
  });
}

}  // namespace
