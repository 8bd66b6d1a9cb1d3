#include <algorithm>
#include <functional>
#include <nlohmann/json.hpp>

#include "tests/app/Program.h"

namespace app {
namespace {

using Json = nlohmann::ordered_json;

class OrlenaCheck : public ProgramTest {
 protected:
  Json example() const {
    return Json::parse(fileText(ORLENA_SOURCE_FOLDER "/examples/lecture-hall.json"));
  }

  /// What two acts of visitors bring about in a room of these answers, whose file is changed before
  /// it is checked.
  std::string found(const Json& answers, const std::function<void(Json&)>& change = {}) {
    const Outcome built = build(answers.dump(), {"--replace"});
    EXPECT_EQ(built.status, 0) << built.errors;
    if (change) {
      Json system = Json::parse(fileText(built.firstLine()));
      change(system);
      writeFile(built.firstLine(), system.dump());
    }
    const Outcome checked = program.run({"check", "--depth", "2", "--json", built.firstLine()});
    EXPECT_EQ(checked.status, 1) << checked.errors;
    std::string text;
    const Json result = Json::parse(checked.output);
    for (const Json& fault : result["systems"][0]["faults"]) {
      if (fault["everyday"])
        text += fault["what"].get<std::string>() + fault["answers"].dump() + "\n";
    }
    return text;
  }
};

Json& stepsOf(Json& system, const std::string& preset) {
  Json& presets = system["presets"];
  return *std::find_if(presets.begin(), presets.end(),
                       [&](const Json& each) { return each["name"] == preset; });
}

TEST_F(OrlenaCheck, findsFaultsThatArePlantedInCopiesOfTheExample) {
  Json always = example();
  always["lockout"]["contact"] = "unused";
  always["display"].erase("relay");
  always.erase("room");  // buttons of a panel's pages are not locked
  const std::string usual = found(always);
  const std::string usualWithContact = found(example());
  const auto isNew = [&](const std::string& fault, const std::string& now,
                         const std::string& before) {
    expectHas(now, fault);
    EXPECT_EQ(before.find(fault), std::string::npos) << fault << " stands in\n" << before;
  };
  const auto planted = [&](const char* place, Json value) {
    Json answers = always;
    answers[Json::json_pointer(place)] = std::move(value);
    return found(answers);
  };
  const std::string wrongSource =
      "the display does not show the RGB source that is selected[\"display.rgb\",\"lockout.on\"]";
  isNew(wrongSource, planted("/lockout/on", 20), usual);
  isNew("is cut off by Relay_Open: its mains went while it cooled down[\"display.relay.off_delay\"",
        planted("/display/relay", {{"on_delay", 0}, {"off_delay", 0}}), usual);
  isNew(wrongSource, planted("/display/rgb", ""), usual);
  isNew("the screen stays down[\"screen.on\",\"screen.off\"]", planted("/screen/off", ""), usual);
  isNew("The program runs in an endless loop: the preset \"System Lock\".[]",
        found(example(),
              [](Json& system) {
                stepsOf(system, "System Lock")["steps"].push_back(
                    {{"kind", 7}, {"preset", "System Lock"}});
              }),
        usualWithContact);
  isNew("the receiver stays locked[\"lockout.contact\"]",
        found(example(), [](Json& system) { stepsOf(system, "System Unlock")["steps"].erase(0); }),
        usualWithContact);
}

TEST_F(OrlenaCheck, tellsTheShortestWayInWordsAndEveryFile) {
  const Outcome built = build(R"({"name": "Hall", "display": {"device": "Bravonne P2200"}})");
  folder.write("text.tsy", "no system");
  const Outcome checked = program.run({"check", "--depth", "1", built.firstLine(), "text.tsy"});
  EXPECT_EQ(checked.status, 2);
  expectHas(checked.errors, "text.tsy: ");
  expectHas(checked.output,
            "\"Hall\"\n\nWhat visitors can bring about\n"
            "  Display Device does not take RGB_1: it is off\n"
            "      against: no command to the display is lost\n"
            "            0.00  press Select_RGB of Receiver\n"
            "            0.00  Display Device does not take RGB_1: it is off\n");
}

}  // namespace
}  // namespace app
