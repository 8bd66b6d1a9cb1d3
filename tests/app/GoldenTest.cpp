#include <algorithm>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>

#include "tests/app/Program.h"
#include "tests/support/Golden.h"

namespace app {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::ordered_json;

const fs::path goldens = fs::path(ORLENA_SOURCE_FOLDER) / "tests/golden";

/// The rooms in which nearly everything is met also keep all that a listing holds, the settings
/// with it.
const std::set<std::string> fullRooms{"room-discrete-everything", "room-sensing"};

std::set<fs::path> cases() {
  std::set<fs::path> found;
  for (const auto& entry : fs::directory_iterator(goldens)) {
    if (entry.is_directory()) found.insert(entry.path());
  }
  return found;
}

/// What "show" prints of a system, with its folder, which is another one each time, replaced.
std::string shown(Program& program, const std::vector<std::string>& arguments) {
  const Outcome outcome = program.run(arguments);
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  static const std::regex folder(R"re((" in |"folder": ")[^"\n]*)re");
  return std::regex_replace(outcome.output, folder, "$1FOLDER",
                            std::regex_constants::format_first_only);
}

/// A listing with a line for each object that fits into one or holds plain values alone.
std::string laidOut(const Json& value, const std::string& indent = "") {
  constexpr std::size_t widest = 120;
  const std::string line = value.dump();
  const auto holdsMore = [](const Json& part) { return part.is_structured() && !part.empty(); };
  if (line.size() <= widest || std::ranges::none_of(value, holdsMore)) return line;
  std::string text;
  for (const auto& [key, part] : value.items()) {
    const std::string name = value.is_object() ? Json(key).dump() + ": " : "";
    text += (text.empty() ? "\n  " : ",\n  ") + indent + name + laidOut(part, indent + "  ");
  }
  return (value.is_object() ? "{" : "[") + text + "\n" + indent + (value.is_object() ? "}" : "]");
}

TEST(GoldenRooms, areCompleteAndHoldNothingElse) {
  EXPECT_FALSE(cases().empty());
  for (const auto& entry : fs::directory_iterator(goldens)) {
    EXPECT_TRUE(entry.is_directory() || entry.path().filename() == "README.md") << entry.path();
  }
  for (const fs::path& golden : cases()) {
    std::set<std::string> files;
    for (const auto& entry : fs::directory_iterator(golden)) {
      files.insert(entry.path().filename().string());
      EXPECT_GT(fs::file_size(entry.path()), 0U) << entry.path();
    }
    std::set<std::string> needed{"README", "answers.json", "expected.txt"};
    if (fullRooms.contains(golden.filename().string())) needed.insert("expected.json");
    EXPECT_EQ(files, needed) << golden;
    const std::string why = fileText(golden / "README");
    EXPECT_EQ(why.find('\n'), why.size() - 1) << golden << ": README must be one line";
  }
}

TEST(GoldenRooms, areBuiltAsExpected) {
  for (const fs::path& golden : cases()) {
    const std::string name = golden.filename().string();
    if (!tests::isGoldenAsked(name)) continue;
    SCOPED_TRACE(name);
    const TemporaryFolder folder;
    Program program(folder);
    const Outcome built =
        program.run({"build", (golden / "answers.json").string(), "--out", "systems"});
    EXPECT_EQ(built.status, 0) << built.errors;
    if (built.status != 0) continue;
    const std::string system = built.firstLine();
    tests::expectGolden(name, golden / "expected.txt", shown(program, {"show", system}));
    if (fullRooms.contains(name)) {
      const std::string json = shown(program, {"show", system, "--json"});
      tests::expectGolden(name, golden / "expected.json", laidOut(Json::parse(json)) + "\n");
    }
  }
}

}  // namespace
}  // namespace app
