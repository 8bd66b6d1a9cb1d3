#include "tests/steps/StepTest.h"

namespace {

constexpr const char* withControl = "Bravonne P2200";

class TabPowerOnOffLockoutTest : public tests::StepTest {
 protected:
  TabPowerOnOffLockoutTest() : StepTest("Power On/Off Lockout") {}

  std::int16_t option() { return addIn->get_PowerContactClosureOption(); }
};

TEST_F(TabPowerOnOffLockoutTest, AsksOnlyWhereThePowerIsControlled) {
  const std::vector<std::string> frames{"frameInfo", "frameDevice", "fraContact"};
  onStep([&] {
    const auto expectHint = [&](const std::string& hint) {
      EXPECT_EQ(states(frames), "o--");
      EXPECT_EQ(text("lblInfo"), hint);
    };
    expectHint(
        "Before configuring Power Lockout add a Display Device on the \"Display Device\" step.");
    for (const char* display : {withControl, "Quenlowe K32"}) {
      enterWith(display);
      EXPECT_EQ(states(frames), "-oo") << display;
    }
    click("chkContact");
    enterWith("Talmerick Nocturne");
    expectHint(
        "Before configuring Power Lockout configure Power Control for the Display Device "
        "on the \"Power Control\" step.");
    EXPECT_EQ(option(), addin::contactPowerOff);
  });
}

TEST_F(TabPowerOnOffLockoutTest, TimesAreReadByEveryWayOffTheStep) {
  onStep(withControl, [&] {
    EXPECT_EQ(text("txtPowerLockoutTime(1)"), "30");
    EXPECT_EQ(text("txtPowerLockoutTime(2)"), "120");
    enter("txtPowerLockoutTime(1)", "55");
    save();
    EXPECT_EQ(addIn->get_PowerOnLockoutTime(), 55);

    document().MarkUnchanged();
    leave();
    EXPECT_FALSE(isModified());
    control<forms::TextBox>("txtPowerLockoutTime(1)").setText("11");  // no focus moves
    control<forms::TextBox>("txtPowerLockoutTime(2)").setText("22");
    next();
    EXPECT_EQ(addIn->get_PowerOnLockoutTime(), 11);
    EXPECT_EQ(addIn->get_PowerOffLockoutTime(), 22);
    EXPECT_TRUE(isModified());
  });
}

TEST_F(TabPowerOnOffLockoutTest, ContactOptionFollowsItsBoxAndButtons) {
  const std::vector<std::string> contact{"chkContact", "optContact(0)", "optContact(1)"};
  onStep(withControl, [&] {
    EXPECT_EQ(states(contact), "o..");
    document().MarkUnchanged();
    click("chkContact");
    EXPECT_EQ(option(), addin::contactPowerOff);
    EXPECT_EQ(states(contact), "xxo");
    EXPECT_TRUE(isModified());
    click("optContact(1)");
    EXPECT_EQ(option(), addin::contactContinue);
    click("chkContact");
    EXPECT_EQ(option(), addin::contactUnused);
    EXPECT_EQ(states(contact), "o..");
    addIn->put_PowerContactClosureOption(7);  // as a file that was edited by hand may say
    fill();
    EXPECT_EQ(states(contact), "xox");
    EXPECT_EQ(option(), 7);
  });
}

}  // namespace
