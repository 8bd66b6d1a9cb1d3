#include <map>
#include <nlohmann/json.hpp>

#include "tests/app/Program.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

using OrlenaRoom = ProgramTest;

TEST_F(OrlenaRoom, isBuiltFromEachExample) {
  for (const auto& file : fs::directory_iterator(fs::path(ORLENA_SOURCE_FOLDER) / "examples")) {
    if (file.path().extension() != ".json") continue;
    const Outcome outcome = program.run({"build", file.path().string()});
    EXPECT_EQ(outcome.status, 0) << file.path() << outcome.errors;
  }
}

/// A copy of the shipped library without the device of this name.
void writeLibraryWithout(const std::string& device, const fs::path& folder) {
  fs::copy(fs::path(ORLENA_SOURCE_FOLDER) / "data/library", folder);
  for (const auto& file : fs::directory_iterator(folder)) {
    if (file.path().extension() != ".json") continue;
    Json json = Json::parse(fileText(file.path()));
    if (!json.contains("devices")) continue;
    Json kept = Json::array();
    for (const Json& entry : json["devices"]) {
      if (entry["name"] != device) kept.push_back(entry);
    }
    json["devices"] = kept;
    writeFile(file.path(), json.dump());
  }
}

/// The page's box stays ticked then, so that the answer would seem to be taken.
TEST_F(OrlenaRoom, isRefusedWhereTheSystemDoesNotGetTheDevice) {
  struct Case {
    const char* device;
    const char* answers;
    const char* refusal;
  };
  const Case cases[] = {
      {"Kestrum Interface", R"("room": {"kestrum": true})",
       R"(answers.json:1: room.kestrum: the step "Room Options" did not take true)"},
      {"Motion Detector", R"("room": {"occupancy": true})",
       R"(answers.json:1: room.occupancy: the step "Room Options" did not take true)"},
      {"Power Relay", R"("display": {"device": "Orvistel F42", "relay": {}})",
       R"(answers.json:1: display.relay: the step "Display Device" did not take {})"},
  };
  for (const Case& missing : cases) {
    writeLibraryWithout(missing.device, folder / "library");
    const Outcome outcome = build(std::string(R"({"name": "Hall", )") + missing.answers + "}",
                                  {"--library", "library"});
    EXPECT_EQ(outcome.status, 1) << missing.device;
    expectHas(outcome.errors, missing.refusal);
    EXPECT_FALSE(fs::exists(folder / "systems")) << missing.device;
    fs::remove_all(folder / "library");
  }
}

TEST_F(OrlenaRoom, ofTwoHundredIsBuiltBesideFiveThatAreBroken) {
  const std::map<int, std::pair<std::string, std::string>> broken{
      {3, {R"("lockout": {"contact": "opened"})", "lockout.contact: \"opened\" is none of "}},
      {50, {R"("screen": {"device": "Hoistrel HL-30"})", "screen.device: \"Hoistrel HL-30\" is "}},
      {51,
       {R"("transmitters": [{"type": "Wall Plate Transmitter"}, {"type": "Wall"}])",
        "transmitters[1].type: \"Wall\" is none of "}},
      {120, {R"("room": {"fenlet_password": "x"})", "room.fenlet_password: is not asked for "}},
      {199, {R"("audio": {"mute": true})", "audio.mute: is no key"}},
  };
  std::vector<std::string> arguments{"build", "--out", "out", "--jobs", "2"};
  std::string paths;
  for (int i = 0; i < 200; ++i) {
    const std::string name = "Room " + std::to_string(i);
    const auto fault = broken.find(i);
    const std::string answers =
        fault == broken.end() ? R"("display": {"device": "Orvistel F42"})" : fault->second.first;
    folder.write(name + ".json", R"({"name": ")" + name + "\", " + answers + "}");
    arguments.push_back(name + ".json");
    if (fault == broken.end()) {
      paths += (folder / ("out/" + name + "/" + name + ".tsy")).string() + "\n";
    }
  }
  const Outcome outcome = program.run(arguments);
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.output, paths);
  for (const auto& [number, fault] : broken) {
    expectHas(outcome.errors, "Room " + std::to_string(number) + ".json:1: " + fault.second);
    EXPECT_FALSE(fs::exists(folder / ("out/Room " + std::to_string(number))));
  }
}

}  // namespace
}  // namespace app
