#include <gtest/gtest.h>

#include "forms/CheckBox.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "host/iTab.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::CheckBox;
using forms::OptionButton;
using forms::TextBox;
using tests::Wizard;

constexpr const char* stepName = "Power On/Off Lockout";
constexpr const char* withControl = "Bravonne P2200";
constexpr const char* withoutControl = "Talmerick Nocturne";

class TabPowerOnOffLockoutTest : public testing::Test {
 protected:
  void run(const std::string& display, const std::function<void()>& script) {
    wizard.run([&] {
      enterWith(display);
      script();
    });
  }
  void enterWith(const std::string& display) {
    wizard.goTo("Display Device");
    if (!display.empty()) wizard.chooseDisplay(display);
    wizard.goTo(stepName);
  }
  void fill() { wizard.step(stepName).call("SetData"); }
  bool isVisible(const char* name) { return wizard.control(name).isVisible(); }
  bool isChosen(const char* name) { return wizard.control<OptionButton>(name).isChosen(); }
  std::int16_t option() { return wizard.addIn->get_PowerContactClosureOption(); }

  Wizard wizard;
};

TEST_F(TabPowerOnOffLockoutTest, AsksOnlyWhereThePowerIsControlled) {
  run("", [&] {
    const auto expectHint = [&](const std::string& text) {
      EXPECT_TRUE(isVisible("frameInfo"));
      EXPECT_FALSE(isVisible("frameDevice"));
      EXPECT_FALSE(isVisible("fraContact"));
      EXPECT_EQ(wizard.text("lblInfo"), text);
    };
    expectHint(
        "Before configuring Power Lockout add a Display Device on the \"Display Device\" "
        "step.");
    for (const char* display : {withControl, "Quenlowe K32"}) {
      enterWith(display);
      EXPECT_FALSE(isVisible("frameInfo")) << display;
      EXPECT_TRUE(isVisible("frameDevice")) << display;
      EXPECT_TRUE(isVisible("fraContact")) << display;
    }
    wizard.click("chkContact");
    enterWith(withoutControl);
    expectHint(
        "Before configuring Power Lockout configure Power Control for the Display Device "
        "on the \"Power Control\" step.");
    EXPECT_EQ(option(), addin::contactPowerOff);
  });
}

TEST_F(TabPowerOnOffLockoutTest, TimeIsReadByEveryWayOutOfItsBox) {
  struct Case {
    const char* typed;
    const char* shown;
  };
  run(withControl, [&] {
    EXPECT_EQ(wizard.text("txtPowerLockoutTime(1)"), "30");
    EXPECT_EQ(wizard.text("txtPowerLockoutTime(2)"), "120");
    for (const auto& [typed, shown] :
         {Case{"-45", "45"}, Case{"2.5", "2"}, Case{"3.5", "4"}, Case{"x", "0"},
          Case{"1234", "123"}, Case{"9e9", "32767"}, Case{"", "0"}}) {
      wizard.enter("txtPowerLockoutTime(1)", typed);
      wizard.user.press(forms::keys::enter);
      EXPECT_EQ(wizard.text("txtPowerLockoutTime(1)"), shown) << typed;
      EXPECT_EQ(std::to_string(wizard.addIn->get_PowerOnLockoutTime()), shown) << typed;
    }
    wizard.enter("txtPowerLockoutTime(2)", "77");
    wizard.user.moveFocus(wizard.control("txtPowerLockoutTime(1)"));
    EXPECT_EQ(wizard.addIn->get_PowerOffLockoutTime(), 77);
    wizard.enter("txtPowerLockoutTime(1)", "55");
    host::AsTab(wizard.step(stepName)).iTab_SaveData();
    EXPECT_EQ(wizard.addIn->get_PowerOnLockoutTime(), 55);

    wizard.document().MarkUnchanged();
    wizard.clickInWindow("cmdNext");
    EXPECT_FALSE(wizard.document().get_Modified());
    wizard.clickInWindow("cmdBack");
    wizard.control<TextBox>("txtPowerLockoutTime(1)").setText("11");  // no focus moves
    wizard.control<TextBox>("txtPowerLockoutTime(2)").setText("22");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.addIn->get_PowerOnLockoutTime(), 11);
    EXPECT_EQ(wizard.addIn->get_PowerOffLockoutTime(), 22);
    EXPECT_TRUE(wizard.document().get_Modified());
  });
}

TEST_F(TabPowerOnOffLockoutTest, ContactOptionFollowsItsBoxAndButtons) {
  run(withControl, [&] {
    EXPECT_FALSE(wizard.control("optContact(0)").isEnabled());
    wizard.document().MarkUnchanged();
    wizard.click("chkContact");
    EXPECT_EQ(option(), addin::contactPowerOff);
    EXPECT_TRUE(isChosen("optContact(0)"));
    EXPECT_TRUE(wizard.document().get_Modified());
    wizard.click("optContact(1)");
    EXPECT_EQ(option(), addin::contactContinue);
    wizard.click("chkContact");
    EXPECT_EQ(option(), addin::contactUnused);
    EXPECT_FALSE(isChosen("optContact(0)"));
    EXPECT_FALSE(isChosen("optContact(1)"));
    wizard.click("chkContact");
    EXPECT_EQ(option(), addin::contactPowerOff);
  });
}

TEST_F(TabPowerOnOffLockoutTest, FillingTheStepShowsTheOptionAndChangesNothing) {
  run(withControl, [&] {
    for (const auto stored :
         {addin::contactContinue, addin::contactPowerOff, addin::contactUnused}) {
      wizard.addIn->put_PowerContactClosureOption(stored);
      wizard.document().MarkUnchanged();
      fill();
      const bool used = stored != addin::contactUnused;
      EXPECT_EQ(wizard.control<CheckBox>("chkContact").isChecked(), used);
      EXPECT_EQ(wizard.control("optContact(1)").isEnabled(), used);
      EXPECT_EQ(isChosen("optContact(1)"), stored == addin::contactContinue);
      EXPECT_EQ(option(), stored);
      EXPECT_FALSE(wizard.document().get_Modified());
    }
    wizard.addIn->put_PowerContactClosureOption(7);  // as a file that was edited by hand may say
    fill();
    EXPECT_TRUE(isChosen("optContact(1)"));
    wizard.click("chkContact");
    EXPECT_EQ(option(), addin::contactUnused);
  });
}

}  // namespace
