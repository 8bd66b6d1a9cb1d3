#include "tests/steps/StepTest.h"

namespace {

/// Answers on a step, and the controls that they change.
struct Answers {
  const char* step;
  std::vector<std::string> clicks;
};

void PrintTo(const Answers& answers, std::ostream* out) { *out << answers.step; }

class FillingTest : public tests::StepTest, public testing::WithParamInterface<Answers> {
 protected:
  FillingTest() : StepTest(GetParam().step) {}
};

TEST_P(FillingTest, ShowsWhatIsStoredAndChangesNothing) {
  onStep("Bravonne P2200", [&] {
    const auto& clicks = GetParam().clicks;
    const std::string before = states(clicks);
    for (const std::string& name : clicks) {
      name.starts_with("cmdChoose") ? chooseDisplay("Fallowmere Roll 180", name) : click(name);
    }
    leave();
    const std::string answered = states(clicks);
    document().MarkUnchanged();
    const auto calls = host->journal().calls();
    fill();
    EXPECT_EQ(states(clicks), answered);

    addIn->ResetSettings();
    fill();
    EXPECT_EQ(states(clicks), before);
    EXPECT_EQ(host->journal().calls(), calls);
    EXPECT_FALSE(isModified());
  });
}

INSTANTIATE_TEST_SUITE_P(
    OfTheSteps, FillingTest,
    testing::Values(Answers{"Audio Control", {"chkMuteOnDigInp3"}},
                    Answers{"Power On/Off Lockout", {"chkContact"}},
                    Answers{"Display Options", {"chkInclude(0)", "cmdChoose(0)"}},
                    Answers{"Orlena Transmitters", {"cmdAdd", "cmdAdd", "cmdDown"}},
                    Answers{"Room Options", {"chkInclude(0)", "chkInclude(1)", "chkOccupancy"}}));

}  // namespace
