#include "tests/app/Program.h"

namespace app {
namespace {

TEST(OrlenaWindow, withoutADisplayIsRefusedWithTheWayAround) {
  const TemporaryFolder folder;
  Program program(folder);
  for (const auto& arguments : {std::vector<std::string>{}, {"wizard"}, {"wizard", "Hall.tsy"}}) {
    expectRefused(program.run(arguments), 2, "\"orlena build\" works without one");
  }
}

TEST(OrlenaFile, thatIsNoSystemOrStandsBesideACommandIsRefused) {
  const TemporaryFolder folder;
  Program program(folder);
  program.setPlatform("offscreen");
  folder.write("hall.json", R"({"name": "Hall"})");
  for (const std::string arguments :
       {"biuld", "hall.json", "Hall.tsy build hall.json", "show Hall.tsy Other.tsy"}) {
    const Outcome outcome = program.shell("orlena " + arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_NE(outcome.errors, "") << arguments;
  }
}

#ifdef ORLENA_QT

TEST(OrlenaWindow, onASystemThatIsNotThereDoesNotOpen) {
  const TemporaryFolder folder;
  Program program(folder);
  program.setPlatform("offscreen");
  for (const auto& arguments : {std::vector<std::string>{"wizard", "Hall.tsy"}, {"Hall.tsy"}}) {
    expectRefused(program.run(arguments), 1, "\"Hall.tsy\"");
  }
}

TEST(OrlenaWindow, isDrawnOnEveryStep) {
  const TemporaryFolder folder;
  Program program(folder);
  const Outcome outcome = program.shell("orlena_screenshots pictures");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  int drawn = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder / "pictures")) {
    EXPECT_EQ(fileText(entry.path()).substr(1, 3), "PNG") << entry.path();
    ++drawn;
  }
  EXPECT_GE(drawn, 10);
  EXPECT_FALSE(std::filesystem::exists(folder / "systems"));
}

#endif

}  // namespace
}  // namespace app
