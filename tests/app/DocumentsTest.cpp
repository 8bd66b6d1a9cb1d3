#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>

#include "answers/AnswersShape.h"
#include "answers/StepTable.h"
#include "tests/app/Program.h"

namespace app {
namespace {

using Json = nlohmann::ordered_json;

/// A row of the table in docs/answers.md: key, value, left out, step, control.
using Row = std::vector<std::string>;

std::vector<Row> documentedAnswers() {
  std::istringstream lines(
      readWhole(std::filesystem::path(ORLENA_SOURCE_FOLDER) / "docs/answers.md"));
  std::vector<Row> rows;
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("| `")) continue;
    Row& row = rows.emplace_back();
    for (std::size_t at = 2; at < line.size();) {
      const std::size_t end = line.find(" |", at);
      row.push_back(line.substr(at, end - at));
      at = end + 3;
    }
  }
  return rows;
}

std::string stepOf(const std::string& path) {
  std::string found;
  for (const answers::StepActs& step : answers::stepActs()) {
    for (const answers::Act& act : step.acts) {
      if (path.starts_with(act.answer)) found = step.step;
    }
  }
  return found;
}

/// The rows that there must be, without what the code does not say.
void collect(const answers::Shape& shape, const std::string& path, bool isRequired,
             std::vector<std::string>& rows) {
  const bool isAnswer = shape.kind != answers::Shape::Kind::object || shape.takesNull;
  if (isAnswer && shape.kind != answers::Shape::Kind::anything && !path.ends_with("[]")) {
    rows.push_back("`" + path + "` " + answers::described(shape) +
                   (isRequired ? " required " : " ") + stepOf(path));
  }
  for (const answers::Key& key : shape.keys) {
    const std::string below = path + (path.empty() ? "" : ".") + key.name;
    collect(key.shape, key.name.empty() ? path + "[]" : below, key.isRequired, rows);
  }
}

TEST(Documents, ofTheAnswersSayWhatTheProgramTakes) {
  std::vector<std::string> taken;
  collect(answers::answersShape(), "", false, taken);
  std::vector<std::string> documented;
  for (const Row& row : documentedAnswers()) {
    ASSERT_EQ(row.size(), 5U) << row.front();
    documented.push_back(row[0] + " " + row[1] + (row[2] == "required" ? " required " : " ") +
                         row[3]);
  }
  EXPECT_EQ(documented, taken);
}

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
    return readWhole(folder / "systems/Hall/Hall.tsy");
  };
  const std::string leftOut = built();
  for (const Row& row : documentedAnswers()) {
    std::string path = row[0].substr(1, row[0].size() - 2);
    if (!row[2].starts_with('`') || path == "room.fenlet" || path == "room.occupancy") continue;
    std::replace(path.begin(), path.end(), '.', '/');
    room[Json::json_pointer("/" + path)] = Json::parse(row[2].substr(1, row[2].size() - 2));
  }
  EXPECT_EQ(built(), leftOut);
}

TEST(Documents, letTheShellOfferCommandsOptionsAndFiles) {
  const TemporaryFolder folder;
  Program program(folder);
  ASSERT_EQ(program.run({"documents", "--out", "share"}).status, 0);
  folder.write("hall.json", "");
  folder.write("hall.tsy", "");
  const auto offered = [&](const std::string& words, int place) {
    return program
        .shell("bash -c 'source share/bash-completion/completions/orlena; COMP_WORDS=(" + words +
               "); COMP_CWORD=" + std::to_string(place) + "; _orlena; echo ${COMPREPLY[*]}'")
        .output;
  };
  EXPECT_EQ(offered("orlena re", 1), "report receiver\n");
  EXPECT_EQ(offered("orlena build --re", 2), "--replace\n");
  EXPECT_EQ(offered("orlena build h", 2), "hall.json\n");
  EXPECT_EQ(offered("orlena show h", 2), "hall.tsy\n");
  EXPECT_EQ(offered("orlena build --out s", 3), "share\n");
  EXPECT_EQ(offered("orlena build --upload \"\"", 3), "\n");
  EXPECT_NE(readWhole(folder / "share/man/man1/orlena.1").find("\\fB\\-\\-replace\\fR"),
            std::string::npos);
}

}  // namespace
}  // namespace app
