#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/app/Program.h"

namespace app {
namespace {

TEST(OrlenaShow, printsTheListingAndTheReadableText) {
  TemporaryFolder folder;
  Program program(folder);
  folder.write("answers.json", R"({"name": "Hall", "display": {"device": "Bravonne P2200"}})");
  std::string file = program.run({"build", "answers.json"}).output;
  file.pop_back();

  const auto listing = nlohmann::json::parse(program.run({"show", file, "--json"}).output);
  EXPECT_EQ(listing["name"], "Hall");
  EXPECT_EQ(listing["application"], "Orlena");
  EXPECT_EQ(listing["devices"][0]["parent"], "");

  const Outcome readable = program.run({"show", file});
  EXPECT_EQ(readable.status, 0);
  EXPECT_NE(readable.output.find("Display Power On"), std::string::npos);
}

TEST(OrlenaShow, saysWhatIsWrongWithAFileThatItCanNotRead) {
  TemporaryFolder folder;
  Program program(folder);
  folder.write("text.tsy", "no system");
  folder.write("foreign.tsy", R"({"format": "other"})");
  for (const std::string file : {"missing.tsy", "text.tsy", "foreign.tsy", "."}) {
    const Outcome outcome = program.run({"show", file, "--json"});
    EXPECT_EQ(outcome.status, 2) << file;
    EXPECT_EQ(outcome.output, "") << file;
    EXPECT_NE(outcome.errors.find(file), std::string::npos) << outcome.errors;
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
  const Outcome outcome = program.run({"schema", "--library", "missing"});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.errors.find("orlena: "), std::string::npos) << outcome.errors;
  EXPECT_NE(outcome.errors.find("missing"), std::string::npos) << outcome.errors;
}

}  // namespace
}  // namespace app
