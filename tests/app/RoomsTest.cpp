#include <algorithm>

#include "tests/app/Program.h"

namespace app {
namespace {

using Listing = std::vector<std::string>;

class OrlenaRooms : public ProgramTest {
 protected:
  Outcome rooms(const std::string& table, const std::string& options = "") {
    folder.write("rooms.csv", table);
    return program.shell("orlena rooms rooms.csv --template room.json --out made/here " + options);
  }
  /// What stands in the folder besides the input.
  Listing made() const {
    Listing all = folder.listing();
    std::erase_if(all, [](const std::string& name) { return !name.starts_with("made"); });
    return all;
  }
};

TEST_F(OrlenaRooms, ofTheExampleAreAllBuilt) {
  const std::string example = ORLENA_SOURCE_FOLDER "/examples/campus/";
  const Outcome outcome = program.shell("orlena rooms " + example + "rooms.csv --template " +
                                        example + "room.json --out answers");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.firstLine(), "answers/Alder 101.json");
  const Outcome built = program.shell("orlena build answers/*.json --out rooms --jobs 2");
  EXPECT_EQ(built.status, 0);
  EXPECT_EQ(built.errors, "");
  EXPECT_EQ(std::count(outcome.output.begin(), outcome.output.end(), '\n'), 40);
  EXPECT_EQ(std::count(built.output.begin(), built.output.end(), '\n'), 40);
}

TEST_F(OrlenaRooms, leaveWhatIsThereUnlessToldToReplaceIt) {
  folder.write("room.json", R"({"lockout": {"on": 20}})");
  const std::string table = "name,lockout.off\nHall,60\nSüd,70\n";
  ASSERT_EQ(rooms(table).output, "made/here/Hall.json\nmade/here/Süd.json\n");
  const Listing both{"made/", "made/here/", "made/here/Hall.json", "made/here/Süd.json"};
  EXPECT_EQ(made(), both);
  EXPECT_EQ(rooms(table).status, 0) << "they say the same";

  const std::string changed = "name,lockout.off\nNord,1\nSüd,80\n";
  expectRefused(rooms(changed), 1,
                "rooms.csv: row 3, column A: name: made/here/Süd.json is there already and says "
                "something else; --replace replaces it\n");
  EXPECT_EQ(made(), both);
  EXPECT_EQ(rooms(changed, "--replace").status, 0);
  expectHas(fileText(folder / "made/here/Süd.json"), "80");

  folder.write("rooms.csv", "name,lockout.off\nNord,2\n");
  const Outcome itself = program.shell(
      "orlena rooms rooms.csv --replace --out made/here --template made/here/Nord.json");
  EXPECT_EQ(itself.errors,
            "rooms.csv: row 2, column A: name: made/here/Nord.json is the template itself\n");
}

TEST_F(OrlenaRooms, areNotThereWhereSomethingIsWrong) {
  folder.write("room.json", R"({"lockout": {"on": 20}})");
  expectRefused(rooms("name;lockout.off\nHall;60\nNord;sixty\n"), 2,
                "rooms.csv: row 3, column B: lockout.off: must be a whole number from 0 to 999\n");
  std::string many = "name;lockout.off\n";
  for (int i = 0; i < 103; ++i) many += "Room " + std::to_string(i) + ";-1\n";
  EXPECT_TRUE(rooms(many).errors.ends_with("\nrooms.csv: and 3 more\n"));
  for (const std::string words :
       {"none.csv --template room.json", "rooms.csv", "rooms.csv --template none.json"}) {
    EXPECT_EQ(program.shell("orlena rooms --out made " + words).status, 2) << words;
  }
  folder.write("room.json", "{\n\"lockouts\": {}}");
  expectHas(rooms("name\nHall\n").errors, "room.json:2: lockouts: is no key");
  EXPECT_EQ(made(), Listing{});

  folder.write("room.json", "{}");
  folder.write("made", "a file");
  EXPECT_EQ(rooms("name\nHall\n").status, 1);
  EXPECT_EQ(fileText(folder / "made"), "a file");
}

}  // namespace
}  // namespace app
