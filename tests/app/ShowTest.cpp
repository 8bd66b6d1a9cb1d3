#include <nlohmann/json.hpp>

#include "tests/app/Program.h"

namespace app {
namespace {

TEST(OrlenaShow, saysWhatIsWrongWithAFileThatItCanNotRead) {
  TemporaryFolder folder;
  Program program(folder);
  folder.write("text.tsy", "no system");
  folder.write("foreign.tsy", R"({"format": "other"})");
  for (const std::string file : {"missing.tsy", "text.tsy", "foreign.tsy", "."}) {
    expectRefused(program.run({"show", file, "--json"}), 2, file);
  }
}

TEST(OrlenaSchema, isThatOfTheLibrary) {
  TemporaryFolder folder;
  Program program(folder);
  folder.write("own/index.json", R"({"format": "trellisar-device-library", "version": 1,
                                     "files": []})");
  const auto displays = [&](const std::vector<std::string>& arguments) {
    const auto schema = nlohmann::json::parse(program.run(arguments).output);
    return schema["properties"]["display"]["properties"]["device"]["enum"].dump();
  };
  EXPECT_NE(displays({"schema"}).find("Bravonne P2200"), std::string::npos);
  EXPECT_EQ(displays({"schema", "--library", "own"}), "[]");
  expectRefused(program.run({"schema", "--library", "missing"}), 2, "missing");
}

TEST(OrlenaLibrary, listsTheNamesOfALibraryWithoutAFault) {
  TemporaryFolder folder;
  Program program(folder);
  folder.write("own/index.json", R"({"format": "trellisar-device-library", "version": 1,
                                     "files": []})");
  EXPECT_EQ(program.run({"library", "own/"}).output, "own/names.tsv\n");
  EXPECT_EQ(fileText(folder / "own/names.tsv").substr(0, 25), "trellisar-device-names\t1\t");
  folder.write("own/forgotten.json", "{}");
  const Outcome outcome = program.run({"library", "own"});
  EXPECT_EQ(outcome.status, 2);
  expectHas(outcome.errors, "own/forgotten.json: the index does not name it");
}

}  // namespace
}  // namespace app
