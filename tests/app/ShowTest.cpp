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

}  // namespace
}  // namespace app
