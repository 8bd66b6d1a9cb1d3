#include "tests/app/Program.h"

namespace app {
namespace {

using Listing = std::vector<std::string>;

class OrlenaOutput : public ProgramTest {
 protected:
  void SetUp() override {
    for (const std::string name : {"A", "B"}) {
      folder.write(name + ".json", R"({"name": "Room )" + name + "\"}");
    }
  }
};

TEST_F(OrlenaOutput, thatCanNotBeWrittenIsToldAndTheRoomsStaySaved) {
  for (const std::string to : {" > /dev/full", " >&-"}) {
    const Outcome built = program.shell("orlena build --replace A.json B.json" + to);
    EXPECT_EQ(built.status, 1) << to;
    EXPECT_TRUE(built.errors.starts_with("orlena: standard output can't be written: "))
        << built.errors;
    for (const std::string command :
         {"show 'systems/Room B/Room B.tsy'", "report --out papers 'systems/Room A/Room A.tsy'",
          "--help", "build --help", "--version"}) {
      const Outcome outcome = program.shell("orlena " + command + to);
      EXPECT_EQ(outcome.status, 1) << command << to;
      EXPECT_TRUE(outcome.errors.ends_with(built.errors)) << command << outcome.errors;
    }
  }
}

TEST_F(OrlenaOutput, thatNobodyReadsEndsTheProgramSilently) {
  const auto unread = [&](const std::string& arguments) {
    return program.shell("{ sleep 0.2; orlena " + arguments + "; echo $? >&2; } | true").errors;
  };
  EXPECT_EQ(unread("build A.json B.json"), "141\n");
  EXPECT_EQ(folder.listing(), (Listing{"A.json", "B.json", "systems/", "systems/Room A/",
                                       "systems/Room A/Room A.tsy"}));
  EXPECT_EQ(unread("show 'systems/Room A/Room A.tsy'"), "141\n");
}

}  // namespace
}  // namespace app
