#include <map>

#include "tests/app/Program.h"
#include "tests/receiver/Running.h"
#include "trellisar/panels/PanelProject.h"

namespace app {
namespace {

namespace fs = std::filesystem;

const std::string example = ORLENA_SOURCE_FOLDER "/examples/meeting-room.json";

class Delivery : public ProgramTest {
 protected:
  Outcome build(std::vector<std::string> arguments, const std::string& answers = example) {
    arguments.insert(arguments.begin(), {"build", answers, "--out", "rooms"});
    return program.run(arguments);
  }
  /// The saved system of a shipped example.
  std::string systemOf(const std::string& name) {
    const Outcome outcome =
        build({}, std::string(ORLENA_SOURCE_FOLDER "/examples/") + name + ".json");
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    return outcome.firstLine();
  }
};

TEST_F(Delivery, exportsAndUploadsAfterTheSave) {
  const tests::Running running({.listen = {"127.0.0.1", 0}, .folder = folder / "receiver"});
  const Outcome built =
      build({"--export", "archives/room.tsa", "--upload", "tcp " + running.address().text()});
  EXPECT_EQ(built.status, 0) << built.errors;
  EXPECT_TRUE(fs::exists(folder / "archives/room.tsa"));
  receiver::Holdings held;
  ASSERT_TRUE(receiver::query(running.address(), held));
  EXPECT_EQ(held.program->name, "Meeting Room");

  const std::string first = fileText(folder / "archives/room.tsa");
  const Outcome again = build({"--export", "archives/room.tsa", "--replace"});
  EXPECT_EQ(again.status, 0) << again.errors;
  EXPECT_EQ(fileText(folder / "archives/room.tsa"), first) << "the same room, the same bytes";
}

TEST_F(Delivery, failureIsToldAndTheSystemStaysSaved) {
  struct Case {
    std::string name;
    std::vector<std::string> arguments;
    std::string answers, told;
  };
  const std::string bare = folder.write("bare.json", R"({"name": "Bare"})").string();
  folder.write("taken.tsa", "mine");
  for (const Case& c : {
           Case{"nobody listens", {"--upload", "127.0.0.1:1"}, example, "not uploaded"},
           Case{"no transmitter", {"--export", "a.tsa"}, bare, "No OL transmitters"},
           Case{"archive is there", {"--export", "taken.tsa"}, example, "taken.tsa"},
       }) {
    fs::remove_all(folder / "rooms");
    const Outcome built = build(c.arguments, c.answers);
    EXPECT_EQ(built.status, 1) << c.name;
    expectHas(built.errors, c.told);
    EXPECT_FALSE(fs::is_empty(folder / "rooms")) << c.name;
  }
  EXPECT_EQ(fileText(folder / "taken.tsa"), "mine");
  EXPECT_FALSE(fs::exists(folder / "a.tsa"));
}

TEST_F(Delivery, wrongCommandLineStartsNothing) {
  for (const auto& arguments :
       std::vector<std::vector<std::string>>{{"--upload", "host:port"},
                                             {"--upload", "127.0.0.1:1", example + "x"},
                                             {"--export", "a.tsa", example + "x"}}) {
    EXPECT_EQ(build(arguments).status, 2) << arguments.front();
    EXPECT_FALSE(fs::exists(folder / "rooms"));
  }
}

TEST_F(Delivery, panelBearsTheLabelsInCapitalsAndTheRoomsCommands) {
  const fs::path system =
      build({"--export", "hall.tsa"}, ORLENA_SOURCE_FOLDER "/examples/lecture-hall.json")
          .firstLine();
  std::map<std::string, std::string> commands;
  for (const auto& page : trellisar::readPanelProject(system.parent_path() / "Fenlet.tpj").pages) {
    for (const auto& object : page.objects) commands[object.text] = object.command;
  }
  EXPECT_TRUE(commands.contains("LECTERN\r\nSELECTED"));
  EXPECT_TRUE(commands.contains("ROW 1\r\nSELECTED"));
  EXPECT_EQ(commands["SCREEN\r\nDOWN"], "Down");
  EXPECT_EQ(commands["DISPLAY\r\nOFF"], "Off");
}

/// The drawing of the largest room stands below the sheet's head, the table on the next page. A
/// program without a window writes no PDF.
TEST_F(Delivery, drawingOfAFullRoomHasItsPlaceOnTheFirstPage) {
  ASSERT_EQ(program.run({"report", systemOf("lecture-hall"), "--out", "papers"}).status, 0);
  const fs::path sheet = folder / "papers/Lecture Hall - Connection Sheet.pdf";
  if (!fs::exists(sheet)) GTEST_SKIP();
  const std::string bytes = fileText(sheet);
  const std::string page = "/Type /Page\n";
  int pages = 0;
  for (auto at = bytes.find(page); at != std::string::npos; at = bytes.find(page, at + 1)) ++pages;
  EXPECT_EQ(pages, 2);
}

TEST_F(Delivery, reportsAreWrittenFromASavedSystem) {
  const std::string system = systemOf("meeting-room");
  EXPECT_EQ(program.run({"report", system, "--out", "papers"}).status, 0);
  const fs::path sheet = folder / "papers/Meeting Room - Connection Sheet.html";
  expectHas(fileText(sheet), "Wall Plate Transmitter");
  EXPECT_EQ(program.run({"report", system, "--out", "papers"}).status, 0) << "its own are replaced";
  fs::create_directory(folder / "other");
  fs::copy_file(system, folder / "other/Meeting Room.tsy");
  expectRefused(program.run({"report", "other/Meeting Room.tsy", "--out", "papers"}), 1,
                "Meeting Room - Bill of Materials.html\" is there already");
  EXPECT_EQ(
      program.run({"report", "other/Meeting Room.tsy", "--out", "papers", "--replace"}).status, 0);
  EXPECT_EQ(program.run({"report", "nowhere.tsy"}).status, 2);
}

}  // namespace
}  // namespace app
