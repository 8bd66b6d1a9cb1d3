#include <nlohmann/json.hpp>

#include "tests/app/Program.h"
#include "tests/support/Golden.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

using OrlenaExplain = ProgramTest;

TEST_F(OrlenaExplain, tellsWhyEachLineOfTheExamplesIsThere) {
  const fs::path sources = ORLENA_SOURCE_FOLDER;
  for (const char* room : {"lecture-hall", "meeting-room"}) {
    const std::string answers = (sources / "examples" / room).string() + ".json";
    const Outcome built = program.run({"build", answers, "--out", "rooms"});
    const Outcome explained = program.run({"explain", built.firstLine()});
    EXPECT_EQ(explained.status, 0) << explained.errors;
    EXPECT_EQ(explained.errors, "");
    tests::expectGolden(std::string("explain-") + room,
                        sources / "tests/explained" / (std::string(room) + ".txt"),
                        explained.output.substr(explained.output.find('\n') + 1));
  }
}

void takeAnswersOut(Json& value, int& taken) {
  if (!value.is_structured()) return;
  if (value.is_object() && value.erase("answers") > 0) ++taken;
  for (Json& part : value) takeAnswersOut(part, taken);
}

TEST_F(OrlenaExplain, addsTheAnswersToTheListing) {
  const std::string system = build(R"({"name": "Hall", "transmitters": [
      {"type": "Guest Transmitter"}, {"type": "Guest Transmitter", "label": "PC"}],
      "lift": {"device": "Hoistrel HL-30", "off_pulse": 12}})")
                                 .firstLine();
  // A step that somebody put in.
  Json json = Json::parse(fileText(system));
  json["presets"][1]["steps"].push_back(json["presets"][1]["steps"][0]);
  writeFile(system, json.dump());
  Json explained = Json::parse(program.run({"explain", system, "--json"}).output);
  const Json off = explained["presets"][1]["steps"];
  EXPECT_EQ(off[1]["answers"].dump(), R"(["lift","lift.off_pulse"])");
  EXPECT_TRUE(off[0]["answers"].empty());
  EXPECT_EQ(off.back()["left_over"], true) << off.dump(2);
  EXPECT_EQ(explained["devices"].back()["answers"].dump(),
            R"(["transmitters[1]","transmitters[1].label"])");
  explained["presets"][1]["steps"].back().erase("left_over");
  int taken = 0;
  takeAnswersOut(explained, taken);
  EXPECT_GT(taken, 20);
  EXPECT_EQ(explained, Json::parse(program.run({"show", system, "--json"}).output));

  writeFile(system, "{}");
  EXPECT_EQ(program.run({"explain", system}).status, 2);
}

}  // namespace
}  // namespace app
