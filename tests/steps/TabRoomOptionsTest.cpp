#include "host/Numbers.h"
#include "tests/steps/StepTest.h"

namespace {

using forms::TextBox;

class TabRoomOptionsTest : public tests::StepTest {
 protected:
  TabRoomOptionsTest() : StepTest("Room Options") {}

  std::string sensorTimeout() {
    return device("Motion Detector")->GetProperty("Timeout")->get_Value();
  }
  /// The password behind the state of its box: "o" on white, "." on grey.
  std::string password() {
    const auto& box = control("txtFenletPassword");
    EXPECT_EQ(box.backColor() == forms::colors::windowBackground, box.isEnabled());
    return states({"txtFenletPassword"}) + text("txtFenletPassword");
  }
};

TEST_F(TabRoomOptionsTest, BoxesAddAndRemoveTheirDevicesAtOnce) {
  onStep([&] {
    const auto dependent = [&] {
      return states({"cmdAdvanced", "chkEnablePwd", "chkPowerTimeout"});
    };
    EXPECT_EQ(dependent(), ".X.");
    for (const char* box : {"chkInclude(0)", "chkInclude(1)", "chkOccupancy"}) click(box);
    EXPECT_TRUE(device("Kestrum Interface") && addIn->get_FenletID() != 0);
    EXPECT_TRUE(device("Motion Detector") && !device("Digital Input 1"));
    EXPECT_TRUE(text("lblIPID").starts_with("IP-ID: ") && text("lblPort").starts_with("Port: "));
    EXPECT_EQ(dependent(), "oxo");

    click("chkPowerTimeout");
    enter("txtPowerOffTimeout", "10");
    click("chkOccupancy");
    EXPECT_TRUE(!device("Motion Detector") && device("Digital Input 1"));
    EXPECT_EQ(text("lblPort") + text("txtPowerOffTimeout"), "");
    click("chkInclude(1)");
    click("chkInclude(0)");
    EXPECT_FALSE(device("Kestrum Interface") || addIn->get_FenletID() != 0);
    EXPECT_EQ(text("lblIPID") + dependent(), ".X.");
  });
}

TEST_F(TabRoomOptionsTest, KestrumTakesTheDetectorAlongAndBringsItBackInTheSameVisit) {
  onStep([&] {
    click("chkInclude(0)");
    click("chkOccupancy");
    click("chkPowerTimeout");
    enterAndLeave("txtPowerOffTimeout", "7", "chkOccupancy");
    const auto occupancy = [&] {
      return states({"chkOccupancy", "chkPowerTimeout", "txtPowerOffTimeout"}) +
             text("txtPowerOffTimeout");
    };
    for (const char* box : {"chkInclude(0)", "chkOccupancy"}) {
      click("chkInclude(0)");
      EXPECT_FALSE(device("Kestrum Interface") || device("Motion Detector"));
      EXPECT_EQ(text("lblPort") + occupancy(), "o..") << box;
      click(box);
      EXPECT_TRUE(device("Motion Detector"));
      EXPECT_EQ(occupancy(), "xxo7") << box;
      leave();
      EXPECT_EQ(sensorTimeout(), "420");
      if (!isChecked("chkInclude(0)")) click("chkInclude(0)");
    }
    click("chkInclude(0)");
    leave();
    EXPECT_EQ(addIn->get_MotionSensorTimeout(), 0);
    click("chkInclude(0)");
    EXPECT_EQ(occupancy(), "o..0");
  });
}

TEST_F(TabRoomOptionsTest, DeviceThatCannotBeAddedLeavesItsBoxTickedAndItsLabelEmpty) {
  onStep([&] {
    host::AddDeviceArguments inTheWay;
    inTheWay.strName = "Kestrum Interface";
    inTheWay.strParentName = document().get_ControlSystem()->get_Name();
    inTheWay.iSlot = host::slotReceiverPorts;
    inTheWay.iControlEntryID = host::entryKestrum;
    ASSERT_TRUE(host->mainWindow()->AddDevice(inTheWay)) << inTheWay.strError;
    desktop.expectMessageWith(forms::Icon::exclamation, "Kestrum Interface");
    click("chkInclude(0)");
    EXPECT_TRUE(isChecked("chkInclude(0)"));
    EXPECT_EQ(text("lblIPID"), "");
  });
}

TEST_F(TabRoomOptionsTest, PasswordLivesWhileItsTwoBoxesAreTicked) {
  onStep([&] {
    EXPECT_EQ(password(), "omossgate");
    click("chkInclude(1)");
    saveAndCompile();
    user.moveFocus(control("txtFenletPassword"));
    EXPECT_EQ(control<TextBox>("txtFenletPassword").selectionLength(), 8);
    user.type(control<TextBox>("txtFenletPassword"), " an Open Door of 20 chars");
    document().MarkUnchanged();
    user.press(forms::keys::enter);
    EXPECT_EQ(addIn->get_FenletPassword(), "an Open Door of 20");
    EXPECT_TRUE(isModified());
    EXPECT_TRUE(document().get_SystemInfo()->get_ProgramIsCurrent());

    document().MarkUnchanged();
    click("chkEnablePwd");
    EXPECT_TRUE(isModified());
    EXPECT_EQ(password(), ".an Open Door of 20");
    click("chkEnablePwd");
    EXPECT_EQ(password(), "oan Open Door of 20");
    click("chkInclude(1)");
    EXPECT_EQ(password(), ".an Open Door of 20");
    EXPECT_EQ(addIn->get_FenletPassword(), "an Open Door of 20");
    leave();
    EXPECT_EQ(addIn->get_FenletPassword() + password(), ".");
    EXPECT_EQ(states({"chkEnablePwd"}), ".") << "there is none to be protected with";

    click("chkInclude(1)");
    click("chkEnablePwd");
    EXPECT_EQ(password(), "o");
    enterAndLeave("txtFenletPassword", "lantern", "chkEnablePwd");
    EXPECT_EQ(addIn->get_FenletPassword(), "lantern");
    click("chkEnablePwd");
    clickInWindow("cmdSave");
    EXPECT_EQ(addIn->get_FenletPassword(), "");
  });
}

TEST_F(TabRoomOptionsTest, TimeoutReachesTheSensorInSeconds) {
  onStep([&] {
    click("chkOccupancy");
    click("chkPowerTimeout");
    leave();
    EXPECT_EQ(text("txtPowerOffTimeout"), "0");
    addIn->put_MotionSensorTimeout(90);
    fill();
    EXPECT_EQ(text("txtPowerOffTimeout"), "1.5");
    leave();
    EXPECT_EQ(addIn->get_MotionSensorTimeout(), 120);
    enterAndLeave("txtPowerOffTimeout", "7", "chkOccupancy");
    EXPECT_EQ(sensorTimeout(), "420");
    document().MarkUnchanged();
    document().get_SystemInfo()->put_ProgramIsCurrent(true);
    click("chkPowerTimeout");
    EXPECT_EQ(addIn->get_MotionSensorTimeout(), 420);
    EXPECT_TRUE(isModified());
    clickInWindow("cmdSave");
    EXPECT_EQ(addIn->get_MotionSensorTimeout(), 0);
    EXPECT_FALSE(document().get_SystemInfo()->get_ProgramIsCurrent());
    EXPECT_EQ(sensorTimeout() + text("txtPowerOffTimeout"), "00");
  });
}

}  // namespace
