#include <signal.h>

#include "tests/app/Program.h"

namespace app {
namespace {

using Listing = std::vector<std::string>;

constexpr const char* meetingRoom = R"({
  "name": "Meeting Room",
  "display": {"device": "Bravonne P2200", "relay": {"on_delay": 5, "off_delay": 90}},
  "power": {"control": "discrete", "second_off": {"delay": 3}}
})";

using OrlenaBuild = ProgramTest;

TEST_F(OrlenaBuild, savesTheRoomAndPrintsOnlyItsPath) {
  const Outcome outcome = build(meetingRoom);
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, (folder / "systems/Meeting Room/Meeting Room.tsy").string() + "\n");
  EXPECT_EQ(folder.listing(), (Listing{"answers.json", "systems/", "systems/Meeting Room/",
                                       "systems/Meeting Room/Meeting Room.tsy"}));
}

TEST_F(OrlenaBuild, putsTheSystemWhereItIsTold) {
  const std::string here = R"({"name": "Hall", "folder": "rooms/north"})";
  EXPECT_EQ(build(here).output, (folder / "rooms/north/Hall/Hall.tsy").string() + "\n");
  EXPECT_EQ(build(here, {"--out", "out"}).output, (folder / "out/Hall/Hall.tsy").string() + "\n");
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
  const auto file = folder / "systems/Meeting Room/Meeting Room.tsy";
  const std::string first = fileText(file);
  ASSERT_EQ(build(meetingRoom, {"--replace"}).status, 0);
  EXPECT_EQ(fileText(file), first);
}

TEST_F(OrlenaBuild, refusesAnExistingSystemAndLeavesItUnlessToldToReplaceIt) {
  ASSERT_EQ(build(meetingRoom).status, 0);
  const auto file = folder / "systems/Meeting Room/Meeting Room.tsy";
  const std::string first = fileText(file);

  const std::string changed = R"({"name": "Meeting Room", "display": {"device": "Orvistel F42"}})";
  expectRefused(
      build(changed), 1,
      "answers.json: there is a system already: " + file.string() + "; --replace replaces it\n");
  EXPECT_EQ(fileText(file), first);

  EXPECT_EQ(build(changed, {"--replace"}).status, 0);
  EXPECT_NE(fileText(file), first);
}

struct Refusal {
  const char* answers;
  int status;
  std::string errors;  // what standard error begins with
};

const Refusal refusals[] = {
    {R"({"name": "Hall",})", 2, "answers.json:1: a comma with nothing behind it; take it away\n"},
    {"{\"display\": {\"rgb\": \"A\", \"rgb\": \"B\"},\n\"lockout\": 1}", 2,
     "answers.json:1: display.rgb: the key stands twice\n"
     "answers.json:2: lockout: must be an object\n"},
    {R"({"power": {"control": "toggle"}})", 2,
     R"(answers.json:1: power.control: "toggle" is none of "none", "sensing", "discrete")"},
    {R"({"name": "Hall", "display": {"device": "Bravonne"}})", 2,
     R"(answers.json:1: display.device: "Bravonne" is none of "Bravonne P2200", )"},
    {R"({"name": "Hall", "display": {"device": "Orvistel F42", "rgb": "RGB_1"}})", 2,
     R"(answers.json:1: display.rgb: "RGB_1" is none of "", "PWR_ON", )"},
    {R"({"name": "Hall", "display": {"relay": {}}})", 2,
     R"(answers.json:1: display.relay: is not asked for in this room: the step "Display Device" )"
     R"(does not show it; leave it out)"},
    {R"({"name": "Hall", "display": {"device": "Orvistel F42"}, "power": {"control": "sensing"}})",
     2,
     R"(answers.json:1: power.control: "sensing" is not offered in this room; this is: )"
     R"("discrete", "none")"},
    {R"({"name": "Hall", "display": {"device": "Orvistel F42"},
         "power": {"control": "none", "on": ""}})",
     2, "answers.json:2: power.on: is not asked for in this room: "},
    {R"({"screen": {"device": "Hoistrel HL-30"}})", 2,
     R"(answers.json:1: screen.device: "Hoistrel HL-30" is none of )"},
    {R"({"screen": {"device": "Drapewick Mixed 240", "off_pulse": 0}})", 2,
     R"(answers.json:1: screen.off_pulse: is not asked for in this room: the step )"
     R"("Display Options" does not show it; leave it out)"},
    {R"({"transmitters": [{"type": "Lectern Transmitter"}, {"type": "Link Coupler"}]})", 2,
     R"(answers.json:1: transmitters[1].type: "Link Coupler" is none of "Floor Box Transmitter", )"
     R"("Guest Transmitter", "Lectern Transmitter", "Table Box Transmitter", )"
     R"("Wall Plate Transmitter")"},
    {R"({"room": {"fenlet_password": ""}})", 2,
     R"(answers.json:1: room.fenlet_password: is not asked for in this room: the step )"
     R"("Room Options" has it disabled; leave it out)"},
    {R"({"name": "  "})", 1,
     R"(answers.json:1: name: the step "Name and Location" did not take "  ")"},
    {R"({"name": "4th Floor"})", 1,
     "answers.json: Orlena: Names cannot begin with digits 0-9.\n"
     R"(answers.json:1: name: the step "Name and Location" did not take "4th Floor")"},
};

TEST_F(OrlenaBuild, refusesWhatTheRoomDoesNotTakeAndLeavesNothing) {
  for (const Refusal& refusal : refusals) {
    const Outcome outcome = build(refusal.answers, {"--out", "made/by/the run"});
    EXPECT_EQ(outcome.status, refusal.status);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(outcome.errors.substr(0, refusal.errors.size()), refusal.errors) << outcome.errors;
    EXPECT_EQ(folder.listing(), Listing{"answers.json"});
  }
}

TEST_F(OrlenaBuild, tellsThatAFileStandsInThePlaceOfTheFolder) {
  folder.write("taken", "a file");
  expectRefused(build(meetingRoom, {"--out", "taken"}), 1, "taken");
  EXPECT_EQ(fileText(folder / "taken"), "a file");
}

TEST_F(OrlenaBuild, isRefusedByAWrongCommandLine) {
  folder.write("hall.json", "{}");
  for (const std::string words :
       {"construct", "build", "build missing.json", "build hall.json --jobs 0",
        "build hall.json --jobs two", "build hall.json --overwrite"}) {
    EXPECT_EQ(program.shell("orlena " + words).status, 2) << words;
  }
  EXPECT_EQ(folder.listing(), Listing{"hall.json"});
}

TEST_F(OrlenaBuild, readsOneAnswersFileFromStandardInput) {
  folder.write("hall.json", R"({"name": "Hall"})");
  const auto build = [&](const std::string& files, const std::string& input) {
    return program.shell("orlena build --replace " + files + " " + input);
  };
  EXPECT_EQ(build("-", "< hall.json").output, (folder / "systems/Hall/Hall.tsy").string() + "\n");
  EXPECT_EQ(build("hall.json -", "< /dev/null").errors.substr(0, 2), "-:");
  EXPECT_EQ(build("-", "<&-").errors, "-: it can't be read: Bad file descriptor.\n");
  EXPECT_EQ(build("-", "< /dev/zero").status, 2) << "the end is never reached";
  expectRefused(build("- hall.json -", "< hall.json"), 2, "");
}

TEST_F(OrlenaBuild, startsNoRoomOfABatchThatCanNotStandTogether) {
  folder.write("one.json", R"({"name": "Hall", "folder": "rooms"})");
  folder.write("same.json", R"({"name": "Hall ", "folder": "./other/../rooms/"})");
  expectRefused(program.run({"build", "one.json", "same.json"}), 2,
                "same.json: leads to the same system as one.json: " +
                    (folder / "rooms/Hall").string() + "\n");

  folder.write("unnamed.json", "{}");
  expectRefused(program.run({"build", "one.json", "unnamed.json"}), 2,
                "unnamed.json: name: is missing; of several rooms each must have one\n");
  EXPECT_EQ(folder.listing(), (Listing{"one.json", "same.json", "unnamed.json"}));
}

TEST_F(OrlenaBuild, interruptedLeavesOnlyWholeSystems) {
  Listing arguments{"build", "--out", "out"};
  for (int i = 0; i < 60; ++i) {
    const std::string name = "Room " + std::to_string(i);
    folder.write(name + ".json",
                 R"({"name": ")" + name + R"(", "display": {"device": "Orvistel F42"}})");
    arguments.push_back(name + ".json");
  }
  program.start(arguments);
  for (int i = 0; !std::filesystem::exists(folder / "out/Room 2/Room 2.tsy") && i < 30000; ++i) {
    usleep(1000);
  }
  kill(program.processId(), SIGTERM);
  const Outcome outcome = program.wait();
  EXPECT_EQ(outcome.status, 1);

  std::string saved;
  for (int i = 0; i < 60; ++i) {
    const std::string name = "Room " + std::to_string(i);
    const auto room = folder / ("out/" + name);
    if (!std::filesystem::exists(room)) continue;
    EXPECT_EQ(program.run({"show", (room / (name + ".tsy")).string()}).status, 0) << name;
    saved += (room / (name + ".tsy")).string() + "\n";
  }
  EXPECT_EQ(outcome.output, saved);
  expectHas(outcome.errors, "Room 59.json: interrupted\n");
}

}  // namespace
}  // namespace app
