#include "tests/steps/StepTest.h"

namespace {

/// A box of a step for a number, and the rules of its own.
struct NumberBox {
  const char *step, *name, *other;  // other: a control of the same step
  std::vector<std::string> clicks;  // which open the box
  float (*stored)(const addin::IAddIn&);
  std::vector<std::pair<const char*, float>> held;
  bool isStoredByEnter;
  const char *bad = nullptr, *refusal = nullptr;  // null: any number is taken
};

void PrintTo(const NumberBox& box, std::ostream* out) { *out << box.name; }

class NumberBoxTest : public tests::StepTest, public testing::WithParamInterface<NumberBox> {
 protected:
  NumberBoxTest() : StepTest(GetParam().step) {}

  void onBox(const std::function<void()>& script) {
    onStep("Bravonne P2200", [&] {
      for (const std::string& name : box.clicks) {
        name.starts_with("cmdChoose") ? chooseDisplay("Fallowmere Roll 180", name) : click(name);
      }
      script();
    });
  }
  float stored() { return box.stored(*addIn); }

  const NumberBox& box = GetParam();
};

TEST_P(NumberBoxTest, HoldsTheRoundedLeadingNumberOnceItIsLeft) {
  onBox([&] {
    auto held = box.held;
    held.insert(held.begin(), {{"7s", 7.F}, {"", 0.F}, {"2.5", 2.F}, {"3.5", 4.F}, {"x", 0.F}});
    for (const auto& [typed, number] : held) {
      enterAndLeave(box.name, typed, box.other);
      EXPECT_EQ(text(box.name), std::to_string(static_cast<int>(number))) << typed;
      EXPECT_EQ(stored(), number) << typed;
    }
    document().MarkUnchanged();
    enterAndLeave(box.name, text(box.name), box.other);
    EXPECT_FALSE(isModified());
    hold(box.name, "5");
    EXPECT_EQ(stored() == 5, box.isStoredByEnter);
  });
}

TEST_P(NumberBoxTest, RefusesABadNumberWithinTheStepAndResetsItOutside) {
  if (!box.bad) return;
  onBox([&] {
    enterAndLeave(box.name, "9", box.other);
    enter(box.name, box.bad);
    const std::string refusal = box.refusal;
    expectMessage(refusal + "\r\nPlease set another value.");
    const std::string before = states({box.other});
    click(box.other);
    EXPECT_TRUE(control(box.name).hasFocus());
    EXPECT_EQ(states({box.other}), before) << "the click is dropped";
    EXPECT_EQ(text(box.name), box.bad);
    EXPECT_EQ(stored(), 9);

    expectMessage(refusal + "\r\nThe value will be reset to 0.");
    next();
    EXPECT_NE(currentStep(), box.step);
    EXPECT_EQ(stored(), 0);
  });
}

using addin::IAddIn;
const NumberBox boxes[] = {
    {"Display Device",
     "txtDelay(1)",
     "chkPowerRelay",
     {"chkPowerRelay"},
     [](const IAddIn& addIn) -> float { return addIn.get_PowerRelayOffDelay(); },
     {{"999", 999}},
     false,
     "-5",
     "The time value for the power relay power off delay cannot be negative."},
    {"Power Control",
     "txtSecondOff",
     "chkSecondOff",
     {"chkSecondOff"},
     [](const IAddIn& addIn) -> float { return addIn.get_iSecondPowerOff(); },
     {{"9e9", 32767}, {"-5", -5}},
     true},
    {"Power On/Off Lockout",
     "txtPowerLockoutTime(1)",
     "chkContact",
     {},
     [](const IAddIn& addIn) -> float { return addIn.get_PowerOnLockoutTime(); },
     {{"1234", 123}, {"9e9", 32767}, {"-45", 45}},
     true},
    {"Display Options",
     "txtPulseTimeOff(0)",
     "chkInclude(1)",
     {"chkInclude(0)", "cmdChoose(0)"},
     [](const IAddIn& addIn) { return addIn.get_PowerOffPulseTime(0); },
     {{"655", 655}},
     true,
     "656",
     "The pulse time value for the Screen Off command is set too high (The maximum is 655)."},
    {"Room Options",
     "txtPowerOffTimeout",
     "chkInclude(0)",
     {"chkOccupancy", "chkPowerTimeout"},
     [](const IAddIn& addIn) { return static_cast<float>(addIn.get_MotionSensorTimeout()) / 60; },
     {{"546", 546}},
     false,
     "547",
     "The timeout value for the occupancy sensor is set too high (The maximum is 546)."}};
INSTANTIATE_TEST_SUITE_P(OfTheSteps, NumberBoxTest, testing::ValuesIn(boxes));

}  // namespace
