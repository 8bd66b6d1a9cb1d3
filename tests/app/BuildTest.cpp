#include <gtest/gtest.h>
#include <signal.h>

#include <sstream>

#include "tests/app/Program.h"

namespace app {
namespace {

using Listing = std::vector<std::string>;

constexpr const char* meetingRoom = R"({
  "name": "Meeting Room",
  "display": {"device": "Bravonne P2200", "relay": {"on_delay": 5, "off_delay": 90}},
  "power": {"control": "discrete", "second_off": {"delay": 3}}
})";

class OrlenaBuild : public testing::Test {
 protected:
  Outcome build(const std::string& answers, const std::vector<std::string>& options = {}) {
    folder_.write("answers.json", answers);
    std::vector<std::string> arguments{"build", "answers.json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return program_.run(arguments);
  }

  TemporaryFolder folder_;
  Program program_{folder_};
};

TEST_F(OrlenaBuild, savesTheRoomAndPrintsOnlyItsPath) {
  const Outcome outcome = build(meetingRoom);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, (folder_ / "systems/Meeting Room/Meeting Room.tsy").string() + "\n");
  EXPECT_EQ(folder_.listing(), (Listing{"answers.json", "systems/", "systems/Meeting Room/",
                                        "systems/Meeting Room/Meeting Room.tsy"}));
}

TEST_F(OrlenaBuild, putsTheSystemWhereItIsTold) {
  const std::string here = R"({"name": "Hall", "folder": "rooms/north"})";
  EXPECT_EQ(build(here).output, (folder_ / "rooms/north/Hall/Hall.tsy").string() + "\n");
  EXPECT_EQ(build(here, {"--out", "out"}).output, (folder_ / "out/Hall/Hall.tsy").string() + "\n");
}

TEST_F(OrlenaBuild, withoutANameTakesTheFreshOneOfTheWizard) {
  EXPECT_EQ(build("{}").output,
            (folder_ / "systems/My Orlena System/My Orlena System.tsy").string() + "\n");
  EXPECT_EQ(build("{}").output,
            (folder_ / "systems/My Orlena System 2/My Orlena System 2.tsy").string() + "\n");
}

TEST_F(OrlenaBuild, tellsTheWarningsOfTheProgramOnce) {
  const std::string room = R"({"name": "Hall", "display": {"device": "Orvistel F42"},
    "transmitters": [{"type": "Wall Plate Transmitter"}], "room": {"kestrum": true}})";
  const std::string warning =
      "answers.json: Orlena: Display device does not have a Lamp_Hours, LampHours, or "
      "Lamp_Hours_Analog output.\n"
      "answers.json: Therefore, this feature will not be available from Kestrum.\n";
  EXPECT_EQ(build(room).errors, warning);
  EXPECT_EQ(build(room, {"--replace", "--export", "hall.tsa"}).errors, warning);
}

TEST_F(OrlenaBuild, givesTheSameBytesEachTime) {
  ASSERT_EQ(build(meetingRoom).status, 0);
  const auto file = folder_ / "systems/Meeting Room/Meeting Room.tsy";
  const std::string first = readWhole(file);
  ASSERT_EQ(build(meetingRoom, {"--replace"}).status, 0);
  EXPECT_EQ(readWhole(file), first);
}

TEST_F(OrlenaBuild, refusesAnExistingSystemAndLeavesItUnlessToldToReplaceIt) {
  ASSERT_EQ(build(meetingRoom).status, 0);
  const auto file = folder_ / "systems/Meeting Room/Meeting Room.tsy";
  const std::string first = readWhole(file);

  const std::string changed = R"({"name": "Meeting Room", "display": {"device": "Orvistel F42"}})";
  const Outcome refused = build(changed);
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.output, "");
  EXPECT_EQ(refused.errors, "answers.json: there is a system already: " + file.string() +
                                "; --replace replaces it\n");
  EXPECT_EQ(readWhole(file), first);

  EXPECT_EQ(build(changed, {"--replace"}).status, 0);
  EXPECT_NE(readWhole(file), first);
}

struct Refusal {
  const char* what;
  const char* answers;
  int status;
  const char* errors;  // what standard error begins with
};

void PrintTo(const Refusal& refusal, std::ostream* stream) { *stream << refusal.what; }

class OrlenaBuildRefuses : public OrlenaBuild, public testing::WithParamInterface<Refusal> {};

TEST_P(OrlenaBuildRefuses, andLeavesNothing) {
  const Outcome outcome = build(GetParam().answers, {"--out", "made/by/the run"});
  EXPECT_EQ(outcome.status, GetParam().status);
  EXPECT_EQ(outcome.output, "");
  EXPECT_EQ(outcome.errors.substr(0, std::string(GetParam().errors).size()), GetParam().errors)
      << outcome.errors;
  EXPECT_EQ(folder_.listing(), Listing{"answers.json"});
}

constexpr Refusal refusals[] = {
    {"brokenJson", R"({"name": "Hall",})", 2,
     "answers.json:1: a comma with nothing behind it; take it away\n"},
    {"severalFaults", "{\"display\": {\"rgb\": \"A\", \"rgb\": \"B\"},\n\"lockout\": 1}", 2,
     "answers.json:1: display.rgb: the key stands twice\n"
     "answers.json:2: lockout: must be an object\n"},
    {"wrongWord", R"({"power": {"control": "toggle"}})", 2,
     R"(answers.json:1: power.control: "toggle" is none of "none", "sensing", "discrete")"
     "\n"},
    {"unknownDevice", R"({"name": "Hall", "display": {"device": "Bravonne"}})", 2,
     R"(answers.json:1: display.device: "Bravonne" is none of "Bravonne P2200", )"},
    {"unknownCommand", R"({"name": "Hall", "display": {"device": "Orvistel F42", "rgb": "RGB_1"}})",
     2, R"(answers.json:1: display.rgb: "RGB_1" is none of "", "PWR_ON", )"},
    {"noDisplay", R"({"name": "Hall", "display": {"relay": {}}})", 2,
     R"(answers.json:1: display.relay: is not asked for in this room: the step "Display Device" )"
     R"(does not show it; leave it out)"
     "\n"},
    {"modeNotOffered",
     R"({"name": "Hall", "display": {"device": "Orvistel F42"}, "power": {"control": "sensing"}})",
     2,
     R"(answers.json:1: power.control: "sensing" is not offered in this room; this is: )"
     R"("discrete", "none")"
     "\n"},
    {"commandsWithoutDiscrete",
     R"({"name": "Hall", "display": {"device": "Orvistel F42"},
         "power": {"control": "none", "on": ""}})",
     2, "answers.json:2: power.on: is not asked for in this room: "},
    {"secondOffNotCapable",
     R"({"name": "Hall", "display": {"device": "Orvistel F42"}, "power": {"second_off": {}}})", 2,
     "answers.json:1: power.second_off: is not asked for in this room: "},
    {"lockoutWithoutDisplay", R"({"lockout": {"off": 120}})", 2,
     "answers.json:1: lockout.off: is not asked for in this room: "},
    {"contactWithoutPowerControl",
     R"({"display": {"device": "Istrellan Bellova 27"}, "lockout": {"contact": "unused"}})", 2,
     "answers.json:1: lockout.contact: is not asked for in this room: "},
    {"screenThatIsALift", R"({"screen": {"device": "Hoistrel HL-30"}})", 2,
     R"(answers.json:1: screen.device: "Hoistrel HL-30" is none of )"},
    {"unknownScreenCommand", R"({"screen": {"device": "Fallowmere Taut 280", "on": "Down"}})", 2,
     R"(answers.json:1: screen.on: "Down" is none of "", "Lower", "Raise")"
     "\n"},
    {"pulseOfAMomentaryCommand", R"({"screen": {"device": "Drapewick Mixed 240", "off_pulse": 0}})",
     2,
     R"(answers.json:1: screen.off_pulse: is not asked for in this room: the step )"
     R"("Display Options" does not show it; leave it out)"
     "\n"},
    {"pulseOfNoCommand", R"({"lift": {"device": "Hoistrel HL-30", "on": "", "on_pulse": 3}})", 2,
     "answers.json:1: lift.on_pulse: is not asked for in this room: "},
    {"typeNotForPorts",
     R"({"transmitters": [{"type": "Lectern Transmitter"}, {"type": "Link Coupler"}]})", 2,
     R"(answers.json:1: transmitters[1].type: "Link Coupler" is none of "Floor Box Transmitter", )"
     R"("Guest Transmitter", "Lectern Transmitter", "Table Box Transmitter", )"
     R"("Wall Plate Transmitter")"
     "\n"},
    {"passwordWithoutFenlet", R"({"room": {"fenlet_password": ""}})", 2,
     R"(answers.json:1: room.fenlet_password: is not asked for in this room: the step )"
     R"("Room Options" has it disabled; leave it out)"
     "\n"},
    {"timeoutWithoutSensor", R"({"room": {"kestrum": true, "power_off_after": 0}})", 2,
     "answers.json:1: room.power_off_after: is not asked for in this room: "},
    {"nameOfBlanks", R"({"name": "  "})", 1,
     R"(answers.json:1: name: the step "Name and Location" did not take "  ")"
     "\n"},
    {"nameWithDigit", R"({"name": "4th Floor"})", 1,
     "answers.json: Orlena: Names cannot begin with digits 0-9.\n"
     R"(answers.json:1: name: the step "Name and Location" did not take "4th Floor")"
     "\n"},
};

INSTANTIATE_TEST_SUITE_P(Each, OrlenaBuildRefuses, testing::ValuesIn(refusals),
                         [](const auto& refusal) { return std::string(refusal.param.what); });

TEST_F(OrlenaBuild, tellsThatAFileStandsInThePlaceOfTheFolder) {
  folder_.write("taken", "a file");
  const Outcome outcome = build(meetingRoom, {"--out", "taken"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_NE(outcome.errors.find("taken"), std::string::npos) << outcome.errors;
  EXPECT_EQ(readWhole(folder_ / "taken"), "a file");
  EXPECT_EQ(build("{}", {"--out", "taken"}).status, 1);
}

TEST_F(OrlenaBuild, isRefusedByAWrongCommandLine) {
  EXPECT_EQ(program_.run({"build"}).status, 2);
  EXPECT_EQ(program_.run({"construct"}).status, 2);
  EXPECT_EQ(build("{}", {"--jobs", "0"}).status, 2);
  EXPECT_EQ(build("{}", {"--jobs", "two"}).status, 2);
  EXPECT_EQ(build("{}", {"--overwrite"}).status, 2);
  EXPECT_EQ(program_.run({"build", "missing.json"}).status, 2);
  EXPECT_EQ(folder_.listing(), Listing{"answers.json"});
}

TEST_F(OrlenaBuild, readsOneAnswersFileFromStandardInput) {
  folder_.write("hall.json", R"({"name": "Hall"})");
  const auto build = [&](const std::string& files, const std::string& input) {
    return program_.shell("orlena build --replace " + files + " " + input);
  };
  EXPECT_EQ(build("-", "< hall.json").output, (folder_ / "systems/Hall/Hall.tsy").string() + "\n");
  EXPECT_EQ(build("hall.json -", "< /dev/null").errors.substr(0, 2), "-:");
  EXPECT_EQ(build("-", "<&-").errors, "-: it can't be read: Bad file descriptor.\n");
  EXPECT_EQ(build("-", "< /dev/zero").status, 2) << "the end is never reached";
  const Outcome twice = build("- hall.json -", "< hall.json");
  EXPECT_EQ(twice.status, 2);
  EXPECT_EQ(twice.output, "");
}

TEST_F(OrlenaBuild, buildsTheOtherRoomsOfABatchAndPrintsThemInTheirOrder) {
  Listing arguments{"build", "--out", "out", "--jobs", "2"};
  std::string paths;
  for (const std::string name : {"A", "B", "C", "D", "E"}) {
    const bool broken = name == "B";
    const std::string key = broken ? R"("lockout": {"contact": "opened"}, )" : "";
    folder_.write(name + ".json", "{" + key + R"("name": "Room )" + name + "\"}");
    arguments.push_back(name + ".json");
    if (!broken)
      paths += (folder_ / ("out/Room " + name + "/Room " + name + ".tsy")).string() + "\n";
  }
  const Outcome outcome = program_.run(arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, paths);
  EXPECT_NE(outcome.errors.find("B.json:1: lockout.contact: \"opened\" is none of \"unused\", "
                                "\"power off\", \"continue\"\n"),
            std::string::npos)
      << outcome.errors;
  std::istringstream lines(outcome.errors);
  for (std::string line; std::getline(lines, line);) EXPECT_EQ(line.find(".json:"), 1U) << line;
}

TEST_F(OrlenaBuild, startsNoRoomOfABatchThatCanNotStandTogether) {
  folder_.write("one.json", R"({"name": "Hall", "folder": "rooms"})");
  folder_.write("same.json", R"({"name": "Hall ", "folder": "./other/../rooms/"})");
  const Outcome same = program_.run({"build", "one.json", "same.json"});
  EXPECT_EQ(same.status, 2);
  EXPECT_EQ(same.errors, "same.json: leads to the same system as one.json: " +
                             (folder_ / "rooms/Hall").string() + "\n");

  folder_.write("unnamed.json", "{}");
  const Outcome unnamed = program_.run({"build", "one.json", "unnamed.json"});
  EXPECT_EQ(unnamed.status, 2);
  EXPECT_EQ(unnamed.errors,
            "unnamed.json: name: is missing; of several rooms each must have one\n");
  EXPECT_EQ(folder_.listing(), (Listing{"one.json", "same.json", "unnamed.json"}));
}

TEST_F(OrlenaBuild, interruptedLeavesOnlyWholeSystems) {
  Listing arguments{"build", "--out", "out"};
  for (int i = 0; i < 60; ++i) {
    const std::string name = "Room " + std::to_string(i);
    folder_.write(name + ".json",
                  R"({"name": ")" + name + R"(", "display": {"device": "Orvistel F42"}})");
    arguments.push_back(name + ".json");
  }
  program_.start(arguments);
  for (int i = 0; !std::filesystem::exists(folder_ / "out/Room 2/Room 2.tsy") && i < 30000; ++i) {
    usleep(1000);
  }
  kill(program_.processId(), SIGTERM);
  const Outcome outcome = program_.wait();
  EXPECT_EQ(outcome.status, 1);

  std::string saved;
  for (int i = 0; i < 60; ++i) {
    const std::string name = "Room " + std::to_string(i);
    const auto room = folder_ / ("out/" + name);
    if (!std::filesystem::exists(room)) continue;
    EXPECT_EQ(program_.run({"show", (room / (name + ".tsy")).string()}).status, 0) << name;
    saved += (room / (name + ".tsy")).string() + "\n";
  }
  EXPECT_EQ(outcome.output, saved);
  EXPECT_NE(outcome.errors.find("Room 59.json: interrupted\n"), std::string::npos);
}

}  // namespace
}  // namespace app
