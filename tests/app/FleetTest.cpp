#include <map>
#include <sstream>

#include "tests/app/Program.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// The first example below each heading of docs/fleet.md; the heading of the document has "".
std::map<std::string, std::string> examples() {
  std::map<std::string, std::string> found;
  std::istringstream document(fileText(ORLENA_SOURCE_FOLDER "/docs/fleet.md"));
  std::string heading;
  bool isOver = false;
  for (std::string line; std::getline(document, line);) {
    const bool isCode = line.starts_with("    ");
    if (line.starts_with("## ")) {
      heading = line.substr(3);
      isOver = false;
    }
    if (isCode && !isOver) found[heading] += line.substr(4) + "\n";
    if (!isCode && found.contains(heading)) isOver = true;
  }
  return found;
}

using Fleet = ProgramTest;

TEST_F(Fleet, isBuiltByTheDocumentedCommandsAsByOneCall) {
  folder.write("room.json", R"({"display": {"device": "Orvistel F42"}})");
  folder.write("rooms.csv", "name,lockout.on\nEast 1,5\nEast 2,\nWest 1,\nWest 2,7\nHall,60\n");
  const auto document = examples();
  ASSERT_EQ(program.shell("orlena rooms rooms.csv --template room.json --out answers").status, 0);
  const std::string systems = "cd rooms && find . -name '*.tsy' | sort | xargs -d '\\n' sha256sum";
  const auto built = [&](const std::string& script) {
    fs::remove_all(folder / "rooms");
    const Outcome outcome = program.shell(script);
    EXPECT_EQ(outcome.status, 0) << script << outcome.errors;
    return program.shell(systems).output;
  };
  const std::string whole = built(document.at(""));
  ASSERT_EQ(std::count(whole.begin(), whole.end(), '\n'), 5);

  EXPECT_EQ(built("INDEX=1 COUNT=2\n" + document.at("In the jobs of a CI") + "INDEX=2\n" +
                  document.at("In the jobs of a CI")),
            whole);
  if (fs::exists("/usr/bin/parallel")) {
    EXPECT_EQ(built(document.at("With GNU parallel")), whole);
  }
  if (!fs::exists("/usr/bin/make")) return;
  folder.write("Makefile", document.at("With make"));
  EXPECT_EQ(built("make"), whole);
  folder.write("rooms.csv", "name,lockout.on\nEast 1,5\nEast 2,\nWest 1,8\nWest 2,7\nHall,60\n");
  const std::string again = program.shell("sleep 0.01; make --silent").output;
  EXPECT_TRUE(
      again.ends_with("answers/Hall.json\n" + (folder / "rooms/West 1/West 1.tsy").string() + "\n"))
      << again;
}

}  // namespace
}  // namespace app
