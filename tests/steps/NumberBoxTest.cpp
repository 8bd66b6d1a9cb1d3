#include "tests/steps/StepTest.h"

namespace {

/// A box of a step that takes a number up to a maximum.
struct NumberBox {
  std::string step, name, other;    // other: a control of the same step
  std::vector<std::string> clicks;  // which open the box
  float (*stored)(const addin::IAddIn&);
  std::string maximum, bad, refusal;
};

void PrintTo(const NumberBox& box, std::ostream* out) { *out << box.step; }

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

  const NumberBox& box = GetParam();
};

TEST_P(NumberBoxTest, HoldsTheRoundedLeadingNumberOnceItIsLeft) {
  using Case = std::pair<std::string, float>;
  onBox([&] {
    for (const auto& [typed, number] : {Case{"7s", 7}, Case{"", 0}, Case{"2.5", 2}, Case{"3.5", 4},
                                        Case{"x", 0}, Case{box.maximum, std::stof(box.maximum)}}) {
      enterAndLeave(box.name, typed, box.other);
      EXPECT_EQ(text(box.name), std::to_string(static_cast<int>(number))) << typed;
      EXPECT_EQ(box.stored(*addIn), number) << typed;
    }
    document().MarkUnchanged();
    enterAndLeave(box.name, box.maximum, box.other);
    EXPECT_FALSE(isModified());
  });
}

TEST_P(NumberBoxTest, RefusesABadNumberWithinTheStepAndResetsItOutside) {
  onBox([&] {
    enterAndLeave(box.name, "9", box.other);
    enter(box.name, box.bad);
    expectMessage(box.refusal + "\r\nPlease set another value.");
    const std::string before = states({box.other});
    click(box.other);
    EXPECT_TRUE(control(box.name).hasFocus());
    EXPECT_EQ(states({box.other}), before) << "the click is dropped";
    EXPECT_EQ(text(box.name), box.bad);
    EXPECT_EQ(box.stored(*addIn), 9);

    expectMessage(box.refusal + "\r\nThe value will be reset to 0.");
    next();
    EXPECT_NE(currentStep(), box.step);
    EXPECT_EQ(box.stored(*addIn), 0);
  });
}

const NumberBox delay{
    "Display Device",
    "txtDelay(1)",
    "chkPowerRelay",
    {"chkPowerRelay"},
    [](const addin::IAddIn& addIn) { return static_cast<float>(addIn.get_PowerRelayOffDelay()); },
    "999",
    "-5",
    "The time value for the power relay power off delay cannot be negative."};
const NumberBox pulse{
    "Display Options",
    "txtPulseTimeOff(0)",
    "chkInclude(1)",
    {"chkInclude(0)", "cmdChoose(0)"},
    [](const addin::IAddIn& addIn) { return addIn.get_PowerOffPulseTime(0); },
    "655",
    "656",
    "The pulse time value for the Screen Off command is set too high (The maximum is 655)."};
const NumberBox timeout{
    "Room Options",
    "txtPowerOffTimeout",
    "chkInclude(0)",
    {"chkOccupancy", "chkPowerTimeout"},
    [](const addin::IAddIn& addIn) {
      return static_cast<float>(addIn.get_MotionSensorTimeout()) / 60;
    },
    "546",
    "547",
    "The timeout value for the occupancy sensor is set too high (The maximum is 546)."};
INSTANTIATE_TEST_SUITE_P(OfTheSteps, NumberBoxTest, testing::Values(delay, pulse, timeout));

}  // namespace
