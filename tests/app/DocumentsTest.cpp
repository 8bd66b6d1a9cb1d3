#include <algorithm>
#include <nlohmann/json.hpp>

#include "answers/Table.h"
#include "tests/app/Program.h"

namespace app {
namespace {

using Json = nlohmann::ordered_json;

TEST(Documents, ofTheAnswersSayWhatIsLeftWhereOneIsLeftOut) {
  Json room = Json::parse(R"({
    "name": "Hall", "display": {"device": "Bravonne P2200", "relay": {}},
    "power": {"control": "discrete", "second_off": {}},
    "screen": {"device": "Fallowmere Taut 280", "on": "Lower", "off": "Raise"},
    "lift": {"device": "Hoistrel HL-60", "on": "Down", "off": "Up"},
    "room": {"kestrum": false, "fenlet": true, "occupancy": true}})");
  const TemporaryFolder folder;
  Program program(folder);
  const auto built = [&] {
    folder.write("answers.json", room.dump());
    const Outcome outcome = program.run({"build", "answers.json", "--replace"});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    return fileText(folder / "systems/Hall/Hall.tsy");
  };
  const std::string leftOut = built();
  for (const answers::Step& step : answers::table()) {
    for (const answers::Row& row : step.rows) {
      const bool isSaid = row.leftOut.kind == answers::LeftOut::Kind::value;
      if (!isSaid || row.key == "room.fenlet" || row.key == "room.occupancy") continue;
      std::string path = "/" + row.key;
      std::replace(path.begin(), path.end(), '.', '/');
      room[Json::json_pointer(path)] = row.leftOut.value;
    }
  }
  EXPECT_EQ(built(), leftOut);
}

TEST(Documents, letTheShellOfferCommandsOptionsAndFiles) {
  const TemporaryFolder folder;
  Program program(folder);
  ASSERT_EQ(program.shell("orlena_documents share").status, 0);
  folder.write("hall.json", "");
  folder.write("hall.tsy", "");
  const auto offered = [&](const std::string& words, int place) {
    return program
        .shell("bash -c 'source share/bash-completion/completions/orlena; COMP_WORDS=(" + words +
               "); COMP_CWORD=" + std::to_string(place) + "; _orlena; echo ${COMPREPLY[*]}'")
        .output;
  };
  EXPECT_EQ(offered("orlena re", 1), "report receiver\n");
  EXPECT_EQ(offered("orlena ha", 1), "hall.tsy\n");
  EXPECT_EQ(offered("orlena build --re", 2), "--replace\n");
  EXPECT_EQ(offered("orlena build h", 2), "hall.json\n");
  EXPECT_EQ(offered("orlena show h", 2), "hall.tsy\n");
  EXPECT_EQ(offered("orlena build --out s", 3), "share\n");
  EXPECT_EQ(offered("orlena build --upload \"\"", 3), "\n");
  expectHas(fileText(folder / "share/man/man1/orlena.1"), "\\fB\\-\\-replace\\fR");
}

}  // namespace
}  // namespace app
