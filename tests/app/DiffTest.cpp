#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/app/Program.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

class OrlenaDiff : public ProgramTest {
 protected:
  /// Builds a room from answers, and moves its file to a path of the folder.
  void givenRoom(const std::string& answers, const std::string& path) {
    const Outcome built = build(answers, {"--replace"});
    ASSERT_EQ(built.status, 0) << built.errors;
    fs::create_directories((folder / path).parent_path());
    fs::rename(built.firstLine(), folder / path);
  }

  const std::string withoutLift = R"({"name": "Hall", "display": {"device": "Bravonne P2200"}})";
  const std::string withLift =
      R"({"name": "Hall", "display": {"device": "Bravonne P2200"},
          "lift": {"device": "Hoistrel HL-30", "off_pulse": 12}})";
};

TEST_F(OrlenaDiff, endsWithWhetherTwoRoomsAreTheSame) {
  givenRoom(withoutLift, "a/Hall.tsy");
  givenRoom(withoutLift, "b/Lobby.tsy");
  givenRoom(withLift, "c/Hall.tsy");
  folder.write("text.tsy", "no system");
  const Outcome same = program.run({"diff", "a/Hall.tsy", "b/Lobby.tsy"});
  EXPECT_EQ(same.status, 0);
  EXPECT_EQ(same.output, "");
  const Outcome different = program.run({"diff", "a/Hall.tsy", "c/Hall.tsy", "--json"});
  EXPECT_EQ(different.status, 1);
  const Json differences = Json::parse(different.output)["differences"];
  EXPECT_EQ(differences[0].dump(),
            R"({"part":"answers","change":"new","place":"lift","within":[],"behind":"",)"
            R"("what":"the lift is included","before":"","after":"",)"
            R"("words":"lift (the lift is included) is new"})");
  expectRefused(program.run({"diff", "a/Hall.tsy", "text.tsy"}), 2, "text.tsy");
  EXPECT_EQ(program.run({"diff", "a/Hall.tsy"}).status, 2);
}

TEST_F(OrlenaDiff, findsADifferenceWhereverTheListingsDiffer) {
  std::vector<std::string> command{"build", "--out", "rooms"};
  for (const auto& golden :
       fs::directory_iterator(fs::path(ORLENA_SOURCE_FOLDER) / "tests/golden")) {
    if (!golden.is_directory()) continue;
    const std::string name = golden.path().filename().string();
    Json answers = Json::parse(fileText(golden.path() / "answers.json"));
    answers["name"] = name;
    command.push_back(folder.write(name + ".json", answers.dump()).string());
  }
  std::istringstream files(program.run(command).output);
  std::vector<std::pair<trellisar::DocumentPtr, Json>> rooms;
  for (std::string file; std::getline(files, file);) {
    const auto document = trellisar::readSystemFile(file, nullptr);
    Json listing = trellisar::listing(*document);
    for (const char* place : {"name", "folder", "settings"}) listing.erase(place);
    rooms.emplace_back(document, listing);
  }
  ASSERT_GT(rooms.size(), 20u);
  for (const auto& [one, itsListing] : rooms) {
    for (const auto& [other, otherListing] : rooms) {
      EXPECT_EQ(compare(*one, *other).empty(), itsListing == otherListing)
          << one->name << " and " << other->name;
    }
  }
}

TEST_F(OrlenaDiff, isWhatGitShowsOfARoom) {
  givenRoom(withoutLift, "rooms/Hall 1.tsy");
  givenRoom(withLift, "lift/Hall.tsy");
  const std::string inRepository =
      "cd rooms && export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_SYSTEM=/dev/null && ";
  const Outcome set = program.shell(
      inRepository +
      "git init -q && echo '*.tsy diff=orlena' > .gitattributes && "
      "git config diff.orlena.command 'orlena git-diff' && "
      "git config user.name Test && git config user.email test@localhost && "
      "cp 'Hall 1.tsy' Gone.tsy && git add . && git commit -qm Rooms && "
      "cp ../lift/Hall.tsy 'Hall 1.tsy' && cp ../lift/Hall.tsy New.tsy && rm Gone.tsy && "
      "echo damaged > Damaged.tsy && git add -N New.tsy Damaged.tsy");
  ASSERT_EQ(set.status, 0) << set.errors;
  const Outcome shown = program.shell(inRepository + "git --no-pager diff --no-renames");
  EXPECT_EQ(shown.status, 0) << shown.errors;
  const std::size_t gone = shown.output.find("Gone.tsy is gone\nAnswers\n");
  const std::size_t hall =
      shown.output.find("Hall 1.tsy\nAnswers\n    lift (the lift is included) is new\n");
  const std::size_t fresh = shown.output.find("New.tsy is new\nAnswers\n    display.device ");
  EXPECT_EQ(shown.output.find("Damaged.tsy is new\n    The systems can't be compared."), 0u)
      << shown.output;
  EXPECT_LT(gone, hall) << shown.output;
  EXPECT_LT(hall, fresh) << shown.output;
  EXPECT_NE(fresh, std::string::npos) << shown.output;
  expectHas(shown.output, "System Power Off: after the run of \"Display Power Off\", Lift's ");
  EXPECT_EQ(shown.output.find("@@"), std::string::npos) << "no lines of JSON";

  const Outcome renamed =
      program.shell(inRepository +
                    "git add -A && git commit -qm Lift && git mv 'Hall 1.tsy' Lobby.tsy && "
                    "git --no-pager diff --staged -M");
  expectHas(renamed.output, "No device, no answer and no step differs.");
}

TEST_F(OrlenaDiff, showsInARepositoryWhatOneAnswerChanged) {
  const std::string examples = "EXAMPLES=" ORLENA_SOURCE_FOLDER "/examples; ";
  const Outcome made = program.shell(
      examples +
      "set -e; export GIT_CONFIG_GLOBAL=/dev/null GIT_CONFIG_SYSTEM=/dev/null; "
      "mkdir campus; cd campus; git init -q; echo '*.tsy diff=orlena' > .gitattributes; "
      "git config diff.orlena.command 'orlena git-diff'; "
      "git config user.name Test; git config user.email test@localhost; "
      "orlena build $EXAMPLES/*.json --out . > systems.txt; "
      "while read -r system; do orlena answers \"$system\" > \"${system%.tsy}.json\"; done"
      " < systems.txt; git add .; git commit -qm Rooms; "
      "cd 'Lecture Hall'; sed -i 's/\"on\": 60/\"on\": 45/' 'Lecture Hall.json'; "
      "orlena build 'Lecture Hall.json' --onto 'Lecture Hall.tsy'; "
      "orlena answers 'Lecture Hall.tsy' | cmp - 'Lecture Hall.json'; "
      "git --no-pager diff -- '*.tsy'");
  EXPECT_EQ(made.status, 0) << made.errors;
  expectHas(made.output,
            "Lecture Hall.tsy\nAnswers\n    lockout.on (seconds of lockout after power "
            "on): 60 became 45\n");
  EXPECT_EQ(made.output.find("Meeting"), std::string::npos) << made.output;
}

}  // namespace
}  // namespace app
