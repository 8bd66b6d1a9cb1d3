#include <nlohmann/json.hpp>

#include "base/FileIO.h"
#include "tests/app/Program.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

constexpr const char* fullHall = R"({
  "display": {"device": "Bravonne P2200", "relay": {"on_delay": 5}},
  "power": {"control": "discrete", "second_off": {"delay": 3}},
  "screen": {"device": "Fallowmere Roll 180"}, "lift": {"device": "Hoistrel HL-30"},
  "transmitters": [{"type": "Table Box Transmitter", "label": "PC"},
                   {"type": "Guest Transmitter"}, {"type": "Lectern Transmitter"}],
  "room": {"occupancy": true, "power_off_after": 20}})";

class Onto : public ProgramTest {
 protected:
  std::string buildNew(const std::string& name, const std::string& answers = fullHall) {
    Json named = Json::parse(answers);
    named["name"] = name;
    const Outcome built = build(named.dump());
    EXPECT_EQ(built.status, 0) << built.errors;
    return built.firstLine();
  }

  Outcome buildOnto(const std::string& answers, std::vector<std::string> systems) {
    systems.insert(systems.begin(), "--onto");
    return build(answers, systems);
  }

  Json answersOf(const std::string& system) {
    const Outcome read = program.run({"answers", system});
    EXPECT_EQ(read.status, 0) << read.errors;
    return Json::parse(read.output);
  }
};

TEST_F(Onto, changesWhatIsAnsweredAndKeepsTheRest) {
  const std::string system = buildNew("Hall");
  Json expected = answersOf(system);
  const Outcome built = buildOnto(
      R"({"display": {"relay": {"on_delay": 7}}, "power": {"second_off": null}, "screen": null,
          "lockout": {"on": 45}, "transmitters": [{"type": "Lectern Transmitter"}]})",
      {system});
  EXPECT_EQ(built.status, 0) << built.errors;
  EXPECT_EQ(built.output, system + "\n");

  expected["display"]["relay"]["on_delay"] = 7;
  expected["power"]["second_off"] = nullptr;
  expected["screen"] = nullptr;
  expected["lockout"]["on"] = 45;
  expected["transmitters"] = Json::array({{{"type", "Lectern Transmitter"}, {"label", "Input"}}});
  EXPECT_EQ(answersOf(system).dump(1), expected.dump(1));
}

TEST_F(Onto, tellsWhatAnEarlierAnswerLeftBehindInTheProgram) {
  const std::string system = buildNew("Hall", R"({"audio": {"mute_on_input_3": true}})");
  ASSERT_EQ(buildOnto(R"({"audio": {"mute_on_input_3": false}})", {system}).status, 0);
  const Outcome read = program.run({"answers", system});
  EXPECT_EQ(read.status, 0);
  EXPECT_EQ(Json::parse(read.output)["audio"]["mute_on_input_3"], false);
  const std::string told = system + ": no answers build this: when dig_input_1 of Digital Input 3 ";
  EXPECT_EQ(read.errors, told + "goes on is new: Receiver's Volume_Mute_On\n" + told +
                             "goes off is new: Receiver's Volume_Mute_Off\n");
}

TEST_F(Onto, givenTheSystemsOwnAnswersLeavesItAsItIs) {
  const std::string system = buildNew("Hall");
  const std::string bytes = fileText(system);
  EXPECT_EQ(buildOnto(answersOf(system).dump(), {system}).status, 0);
  EXPECT_EQ(fileText(system), bytes);
}

TEST_F(Onto, answersSeveralSideBySideAndNotOnesThatAreNotTheWizards) {
  const std::string hall = buildNew("Hall");
  const std::string foyer = buildNew("Foyer", R"({"display": {"device": "Quenlowe K32"}})");
  const std::string foreign = buildNew("Foreign");
  Json other = Json::parse(fileText(foreign));
  other["application"] = "Another wizard";
  writeFile(foreign, other.dump(1));
  const std::string shown = buildNew("Shown");
  const base::FileUse window(shown, base::FileUse::Kind::shared);

  const std::string bytesOfForeign = fileText(foreign);
  const std::string bytesOfShown = fileText(shown);
  const Outcome built =
      buildOnto(R"({"lockout": {"off": 61}})", {hall, foreign, shown, foyer, "--jobs", "2"});
  EXPECT_EQ(built.status, 1);
  EXPECT_EQ(built.output, hall + "\n" + foyer + "\n");
  expectHas(built.errors, "answers.json: " + foreign + ": it is not a system of this wizard");
  expectHas(built.errors, "answers.json: " + shown + ": the system is open in a window");
  EXPECT_EQ(fileText(foreign), bytesOfForeign);
  EXPECT_EQ(fileText(shown), bytesOfShown);
  EXPECT_EQ(answersOf(foyer)["lockout"]["off"], 61);
}

TEST_F(Onto, startsNothingForWhatIsForNewSystems) {
  const std::string system = buildNew("Hall");
  const std::string bytes = fileText(system);
  struct Case {
    const char* answers;
    std::vector<std::string> arguments;
    std::string error;
  };
  const Case cases[] = {
      {"{\n\"name\": \"Hall\"}", {system}, "answers.json:2: name: is for a new system"},
      {R"({"folder": "."})", {system}, "answers.json:1: folder: is for a new system"},
      {R"({"lockout": {"on": 1000}})", {system}, "lockout.on: must be a whole number"},
      {"{}", {system, "--out", "there"}, "--out is for new systems"},
      {"{}", {system, "--replace"}, "--replace is for new systems"},
      {"{}", {"nowhere.tsy"}, "answers.json: there is no system file nowhere.tsy"},
      {"{}", {system, system}, "answers.json: the system is named twice: "},
      {"{}", {system, system, "--upload", "localhost"}, "--upload takes one room"},
  };
  for (const Case& each : cases) {
    expectRefused(buildOnto(each.answers, each.arguments), 2, each.error);
  }
  EXPECT_EQ(fileText(system), bytes);
}

TEST_F(Onto, refusesAnAnswerThatTheSystemIsNotAskedForAndLeavesItAsItWas) {
  const std::string system = buildNew("Hall", "{}");
  const std::string bytes = fileText(system);
  expectRefused(buildOnto(R"({"lockout": {"on": 5}, "power": {"on": "Power_On"}})", {system}), 2,
                "answers.json:1: " + system + ": power.on: is not asked for");
  EXPECT_EQ(fileText(system), bytes);
}

TEST_F(Onto, answersOfWhatIsNoSystemAreToldWithTheReason) {
  folder.write("cut.tsy", "{\"format\": ");
  for (const char* file : {"nowhere.tsy", "cut.tsy"}) {
    expectRefused(program.run({"answers", file}), 2, std::string(file) + ": ");
  }
}

}  // namespace
}  // namespace app
