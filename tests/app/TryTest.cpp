#include <filesystem>
#include <set>

#include "tests/app/Program.h"
#include "tests/support/Golden.h"

namespace app {
namespace {

namespace fs = std::filesystem;

const fs::path source = ORLENA_SOURCE_FOLDER;

/// The files of a folder, by name.
std::set<fs::path> filesIn(const fs::path& folder) {
  std::set<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) files.insert(entry.path());
  return files;
}

using OrlenaTry = ProgramTest;

TEST_F(OrlenaTry, tellsWhatIsWrongAndRunsNoProgramThatIsStored) {
  const std::string hall =
      build(R"({"name": "Hall", "display": {"device": "Bravonne P2200"}})").firstLine();
  const auto tried = [&](const std::string& script) {
    folder.write("script.json", script);
    return program.run({"try", hall, "--script", "script.json", "--json"});
  };
  const Outcome wrong =
      tried("[{\"at\": 1,\n\"press\": {\"unit\": \"Reciever\", \"button\": \"Power_On\"}}]");
  EXPECT_EQ(wrong.status, 2);
  EXPECT_EQ(wrong.errors,
            "script.json:2: [0].press.unit: \"Reciever\" is none of \"Receiver\"; did you mean "
            "\"Receiver\"?\n");
  EXPECT_EQ(program.run({"try", hall, "--script", "nowhere.json"}).status, 2);
  EXPECT_EQ(program.run({"try", "nowhere.tsy", "--script", "script.json"}).status, 2);

  const std::string script = R"([{"at": 1, "press": {"unit": "Receiver", "button": "Power_On"}}])";
  const Outcome right = tried(script);
  EXPECT_EQ(right.status, 0);
  EXPECT_EQ(right.errors, "");
  EXPECT_TRUE(right.output.starts_with("{\n  \"system\": \"Hall\",\n  \"trace\": [\n"));
  EXPECT_EQ(program.shell("orlena try '" + hall + "' --script - --json < script.json").output,
            right.output);

  // A program that is stored beside the system and is cut.
  const std::string document = fileText(hall);
  const std::string none = "\"compiled_program\": \"\"";
  ASSERT_NE(document.find(none), std::string::npos);
  std::string withProgram = document;
  writeFile(hall, withProgram.replace(withProgram.find(none), none.size(),
                                      "\"compiled_program\": \"Hall.tsp\""));
  writeFile(fs::path(hall).replace_extension(".tsp"), "trellisar-program 2 ab");
  const Outcome cut = tried(script);
  EXPECT_EQ(cut.status, 0);
  expectHas(cut.errors, "Hall.tsp");
  EXPECT_EQ(cut.output, right.output);

  // A program with an error.
  std::string withError = document;
  const std::string lock = "\"signal\": \"Lock\"";
  ASSERT_NE(document.find(lock), std::string::npos);
  writeFile(hall, withError.replace(withError.find(lock), lock.size(), "\"signal\": \"Luck\""));
  const Outcome broken = tried(script);
  EXPECT_EQ(broken.status, 2);
  EXPECT_EQ(broken.output, "");
  expectHas(broken.errors, "has no command \"Luck\"");
}

TEST(ExampleTrials, leaveTheirTraces) {
  if (!tests::isGoldenAsked("trials")) return;
  const TemporaryFolder folder;
  Program program(folder);
  for (const fs::path& script : filesIn(source / "examples/trials")) {
    SCOPED_TRACE(script);
    const std::string name = script.stem().string();
    const std::string room = name.starts_with("lecture-hall") ? "lecture-hall" : "meeting-room";
    const Outcome built =
        program.run({"build", source / "examples" / (room + ".json"), "--replace"});
    ASSERT_EQ(built.status, 0) << built.errors;
    const Outcome tried = program.run({"try", built.firstLine(), "--script", script});
    EXPECT_EQ(tried.status, 0);
    EXPECT_EQ(tried.errors, "");
    tests::expectGolden("trials", source / "tests/trial/traces" / (name + ".txt"), tried.output);
  }
}

}  // namespace
}  // namespace app
