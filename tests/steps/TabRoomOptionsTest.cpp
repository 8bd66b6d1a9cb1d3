#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/TextBox.h"
#include "host/Numbers.h"
#include "host/iTab.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::CheckBox;
using forms::Icon;
using forms::TextBox;
using tests::Wizard;

constexpr const char* stepName = "Room Options";

class TabRoomOptionsTest : public testing::Test {
 protected:
  void run(const std::function<void()>& script) {
    wizard.run([&] {
      wizard.goTo(stepName);
      script();
    });
  }
  void fill() { wizard.step(stepName).call("SetData"); }
  void fillWithoutCalls() {
    const auto calls = wizard.host->journal().calls();
    fill();
    EXPECT_EQ(wizard.host->journal().calls(), calls);
  }
  void leave() {
    wizard.clickInWindow("cmdNext");
    wizard.clickInWindow("cmdBack");
  }
  bool isChecked(const char* name) { return wizard.control<CheckBox>(name).isChecked(); }
  bool isEnabled(const char* name) { return wizard.control(name).isEnabled(); }
  std::string sensorTimeout() {
    return wizard.device("Motion Detector")->GetProperty("Timeout")->get_Value();
  }
  void expectPasswordBox(bool enabled, const std::string& text) {
    EXPECT_EQ(isEnabled("txtFenletPassword"), enabled);
    EXPECT_EQ(wizard.control("txtFenletPassword").backColor(),
              enabled ? forms::colors::windowBackground : forms::colors::buttonFace);
    EXPECT_EQ(wizard.text("txtFenletPassword"), text);
  }

  Wizard wizard;
};

TEST_F(TabRoomOptionsTest, BoxesAddAndRemoveTheirDevicesAtOnce) {
  run([&] {
    EXPECT_FALSE(isEnabled("cmdAdvanced"));
    wizard.click("chkInclude(0)");
    EXPECT_TRUE(wizard.device("Kestrum Interface"));
    EXPECT_TRUE(wizard.text("lblIPID").starts_with("IP-ID: "));
    EXPECT_TRUE(isEnabled("cmdAdvanced"));
    wizard.click("chkInclude(1)");
    EXPECT_NE(wizard.addIn->get_FenletID(), 0);
    EXPECT_TRUE(isEnabled("chkEnablePwd"));
    wizard.click("chkOccupancy");
    EXPECT_TRUE(wizard.device("Motion Detector"));
    EXPECT_FALSE(wizard.device("Digital Input 1"));
    EXPECT_TRUE(wizard.text("lblPort").starts_with("Port: "));
    EXPECT_TRUE(isEnabled("chkPowerTimeout"));

    wizard.click("chkPowerTimeout");
    wizard.enter("txtPowerOffTimeout", "10");
    wizard.click("chkOccupancy");
    EXPECT_FALSE(wizard.device("Motion Detector"));
    EXPECT_TRUE(wizard.device("Digital Input 1"));
    EXPECT_EQ(wizard.text("lblPort"), "");
    EXPECT_FALSE(isChecked("chkPowerTimeout"));
    EXPECT_FALSE(isEnabled("chkPowerTimeout"));
    EXPECT_EQ(wizard.text("txtPowerOffTimeout"), "");
    wizard.click("chkInclude(1)");
    EXPECT_EQ(wizard.addIn->get_FenletID(), 0);
    EXPECT_FALSE(isEnabled("chkEnablePwd"));
    wizard.click("chkInclude(0)");
    EXPECT_FALSE(wizard.device("Kestrum Interface"));
    EXPECT_EQ(wizard.text("lblIPID"), "");
    EXPECT_FALSE(isEnabled("cmdAdvanced"));
  });
}

TEST_F(TabRoomOptionsTest, DetectorGoesWithTheMonitoringInterfaceAndItsBoxShowsThatLater) {
  run([&] {
    wizard.click("chkInclude(0)");
    wizard.click("chkOccupancy");
    wizard.click("chkInclude(0)");
    EXPECT_FALSE(wizard.device("Motion Detector"));
    EXPECT_TRUE(isChecked("chkOccupancy"));
    fill();
    EXPECT_FALSE(isChecked("chkOccupancy"));
    EXPECT_EQ(wizard.text("lblPort"), "");
  });
}

TEST_F(TabRoomOptionsTest, DeviceThatCannotBeAddedLeavesItsBoxTickedAndItsLabelEmpty) {
  run([&] {
    host::AddDeviceArguments inTheWay;
    inTheWay.strName = "Kestrum Interface";
    inTheWay.strParentName = wizard.document().get_ControlSystem()->get_Name();
    inTheWay.iSlot = host::slotReceiverPorts;
    inTheWay.iControlEntryID = host::entryKestrum;
    ASSERT_TRUE(wizard.host->mainWindow()->AddDevice(inTheWay)) << inTheWay.strError;
    wizard.desktop.expectMessageWith(Icon::exclamation, "Kestrum Interface");
    wizard.click("chkInclude(0)");
    EXPECT_TRUE(isChecked("chkInclude(0)"));
    EXPECT_EQ(wizard.text("lblIPID"), "");
  });
}

TEST_F(TabRoomOptionsTest, FillingTheStepAddsAndRemovesNothing) {
  run([&] {
    for (const char* box : {"chkInclude(0)", "chkInclude(1)", "chkOccupancy"}) wizard.click(box);
    wizard.addIn->put_MotionSensorTimeout(90);
    wizard.document().MarkUnchanged();
    fillWithoutCalls();
    EXPECT_EQ(wizard.text("txtPowerOffTimeout"), "1.5");
    EXPECT_TRUE(isEnabled("txtPowerOffTimeout"));
    EXPECT_FALSE(wizard.document().get_Modified());
    leave();
    EXPECT_EQ(wizard.addIn->get_MotionSensorTimeout(), 120);
    EXPECT_EQ(wizard.text("txtPowerOffTimeout"), "2");

    wizard.addIn->ResetSettings();
    fillWithoutCalls();
    EXPECT_FALSE(isChecked("chkInclude(0)") || isChecked("chkInclude(1)"));
    EXPECT_FALSE(isChecked("chkOccupancy") || isChecked("chkPowerTimeout"));
    EXPECT_EQ(wizard.text("lblIPID"), "");
  });
}

TEST_F(TabRoomOptionsTest, PasswordLivesWhileItsTwoBoxesAreTicked) {
  run([&] {
    expectPasswordBox(true, "mossgate");
    wizard.click("chkInclude(1)");
    wizard.user.moveFocus(wizard.control("txtFenletPassword"));
    EXPECT_EQ(wizard.control<TextBox>("txtFenletPassword").selectionLength(), 8);
    wizard.user.type(wizard.control<TextBox>("txtFenletPassword"), " an Open Door of 20 chars");
    wizard.document().MarkUnchanged();
    wizard.document().get_SystemInfo()->put_ProgramIsCurrent(true);
    wizard.user.press(forms::keys::enter);
    EXPECT_EQ(wizard.addIn->get_FenletPassword(), "an Open Door of 20");
    expectPasswordBox(true, "an Open Door of 20");
    EXPECT_TRUE(wizard.document().get_Modified());
    EXPECT_TRUE(wizard.document().get_SystemInfo()->get_ProgramIsCurrent());

    wizard.document().MarkUnchanged();
    wizard.click("chkEnablePwd");
    EXPECT_TRUE(wizard.document().get_Modified());
    expectPasswordBox(false, "an Open Door of 20");
    wizard.click("chkEnablePwd");
    expectPasswordBox(true, "an Open Door of 20");
    wizard.click("chkInclude(1)");
    expectPasswordBox(false, "an Open Door of 20");
    EXPECT_EQ(wizard.addIn->get_FenletPassword(), "an Open Door of 20");
    leave();
    EXPECT_EQ(wizard.addIn->get_FenletPassword(), "");
    expectPasswordBox(false, "");
  });
}

TEST_F(TabRoomOptionsTest, TimeoutReachesTheSensorInSeconds) {
  struct Case {
    const char* typed;
    int minutes;
  };
  run([&] {
    wizard.click("chkOccupancy");
    wizard.click("chkPowerTimeout");
    leave();
    EXPECT_EQ(wizard.text("txtPowerOffTimeout"), "0");
    for (const auto& [typed, minutes] :
         {Case{"546", 546}, Case{"2.5", 2}, Case{"15", 15}, Case{"x", 0}, Case{"7", 7}}) {
      wizard.enter("txtPowerOffTimeout", typed);
      wizard.user.moveFocus(wizard.control("chkOccupancy"));
      EXPECT_EQ(wizard.text("txtPowerOffTimeout"), std::to_string(minutes));
      EXPECT_EQ(wizard.addIn->get_MotionSensorTimeout(), minutes * 60) << typed;
      EXPECT_EQ(sensorTimeout(), std::to_string(minutes * 60)) << typed;
    }
    wizard.click("chkPowerTimeout");
    EXPECT_EQ(wizard.addIn->get_MotionSensorTimeout(), 420);
    EXPECT_TRUE(wizard.device("Motion Detector"));
    leave();
    EXPECT_EQ(wizard.addIn->get_MotionSensorTimeout(), 0);
    EXPECT_EQ(sensorTimeout(), "0");
    EXPECT_EQ(wizard.text("txtPowerOffTimeout"), "0");
  });
}

TEST_F(TabRoomOptionsTest, BadTimeoutIsRefusedWithinTheStepAndResetOutsideIt) {
  const std::string high =
      "The timeout value for the occupancy sensor is set too high (The maximum is 546).\r\n";
  run([&] {
    wizard.click("chkOccupancy");
    wizard.click("chkPowerTimeout");
    wizard.enter("txtPowerOffTimeout", "5");
    wizard.user.moveFocus(wizard.control("chkOccupancy"));
    wizard.enter("txtPowerOffTimeout", "547");
    wizard.desktop.expectMessage("Orlena", high + "Please set another value.");
    wizard.click("chkInclude(0)");
    EXPECT_TRUE(wizard.control("txtPowerOffTimeout").hasFocus());
    EXPECT_FALSE(isChecked("chkInclude(0)"));
    EXPECT_EQ(wizard.addIn->get_MotionSensorTimeout(), 300);
    wizard.desktop.expectMessage("Orlena", high + "The value will be reset to 0.");
    host::AsTab(wizard.step(stepName)).iTab_SaveData();
    EXPECT_EQ(wizard.addIn->get_MotionSensorTimeout(), 0);
    wizard.enter("txtPowerOffTimeout", "600");
    wizard.desktop.expectMessage("Orlena", high + "The value will be reset to 0.");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Finish");
  });
}

TEST_F(TabRoomOptionsTest, ButtonAndLinkLeadToPropertiesAndHelp) {
  run([&] {
    wizard.click("chkInclude(0)");
    wizard.desktop.whenShown("DeviceProperties",
                             [&](forms::Form& dialog) { wizard.user.close(dialog); });
    wizard.click("cmdAdvanced");
    wizard.click("lblKestrum");
    EXPECT_EQ(wizard.desktop.helpCalls().back().topic, host::helpKestrumSetup);
    EXPECT_TRUE(wizard.control("chkInclude(1)").tabStop());
    wizard.clickInWindow("cmdNext");
    EXPECT_FALSE(wizard.step(stepName).control("chkInclude(1)").tabStop());
  });
}

}  // namespace
