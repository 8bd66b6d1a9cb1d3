#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "base/Json.h"
#include "tests/app/Program.h"

namespace app {
namespace {

namespace fs = std::filesystem;

const fs::path goldens = fs::path(ORLENA_SOURCE_FOLDER) / "tests/golden";

bool isRenewing() { return std::getenv("ORLENA_RENEW_GOLDENS") != nullptr; }

std::set<fs::path> cases() {
  std::set<fs::path> found;
  for (const auto& entry : fs::directory_iterator(goldens)) {
    if (entry.is_directory()) found.insert(entry.path());
  }
  return found;
}

/// The listing of the room that the answers lead to, with the folder, which is another one each
/// time, replaced; empty, with the test failed, when the room can't be built.
std::string builtListing(const fs::path& answers) {
  const TemporaryFolder folder;
  Program program(folder);
  const Outcome built = program.run({"build", answers.string(), "--out", "systems"});
  EXPECT_EQ(built.status, 0) << built.errors;
  if (built.status != 0) return {};
  const Outcome shown =
      program.run({"show", built.output.substr(0, built.output.find('\n')), "--json"});
  EXPECT_EQ(shown.status, 0) << shown.errors;
  if (shown.status != 0) return {};
  base::Json listing = base::Json::parse(shown.output);
  listing["folder"] = "FOLDER";
  return base::jsonText(listing);
}

std::string difference(const fs::path& expected, const std::string& built) {
  const TemporaryFolder folder;
  const fs::path actual = folder.write("built.json", built);
  const std::string command = "diff -Nu --label expected --label built '" + expected.string() +
                              "' '" + actual.string() + "' > '" + (folder / "diff").string() + "'";
  return std::system(command.c_str()) == 0 ? "" : fileText(folder / "diff");
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
    EXPECT_EQ(files, (std::set<std::string>{"README", "answers.json", "expected.json"})) << golden;
    const std::string why = fileText(golden / "README");
    EXPECT_EQ(why.find('\n'), why.size() - 1) << golden << ": README must be one line";
  }
}

TEST(GoldenRooms, areBuiltAsExpected) {
  for (const fs::path& golden : cases()) {
    SCOPED_TRACE(golden.filename().string());
    const std::string built = builtListing(golden / "answers.json");
    if (built.empty()) continue;
    if (isRenewing()) writeFile(golden / "expected.json", built);
    const std::string diff = difference(golden / "expected.json", built);
    EXPECT_EQ(diff, "") << diff << "renew with: tools/renew-goldens, and review the change";
  }
}

}  // namespace
}  // namespace app
