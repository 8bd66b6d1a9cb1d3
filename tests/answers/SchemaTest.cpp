#include "answers/Schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "base/FileIO.h"

namespace answers {
namespace {

namespace fs = std::filesystem;
using base::Json;

const fs::path source = ORLENA_SOURCE_FOLDER;

Json shippedSchema() { return schema(trellisar::DeviceLibrary(source / "data/library")); }

/// The first place of a value that the schema has no key or no word for; empty: it takes all.
std::string unknownTo(const Json& place, const Json& value, const std::string& path) {
  if (place.contains("enum")) {
    const Json& words = place["enum"];
    return std::find(words.begin(), words.end(), value) == words.end() ? path : "";
  }
  for (const auto& [key, member] : value.items()) {
    const bool isArray = value.is_array();
    if (!isArray && !value.is_object()) break;
    if (!isArray && !place["properties"].contains(key)) return path + "." + key;
    const Json& inner = isArray ? place["items"] : place["properties"][key];
    const std::string unknown = unknownTo(inner, member, path + "." + key);
    if (!unknown.empty()) return unknown;
  }
  return "";
}

TEST(Schema, knowsAllThatTheExamplesAndTheGoldensSay) {
  const Json whole = shippedSchema();
  int files = 0;
  for (const char* folder : {"examples", "tests/golden"}) {
    for (const auto& entry : fs::recursive_directory_iterator(source / folder)) {
      const bool isAnswers = entry.path().extension() == ".json" &&
                             (entry.path().parent_path() == source / "examples" ||
                              entry.path().filename() == "answers.json");
      if (!isAnswers) continue;
      ++files;
      const Json answers = Json::parse(base::readFile(entry.path()));
      EXPECT_EQ(unknownTo(whole, answers, ""), "") << entry.path();
    }
  }
  EXPECT_GT(files, 20);
}

TEST(Schema, saysWhatEachAnswerMayBe) {
  const Json whole = shippedSchema();
  EXPECT_EQ(whole["$schema"], "https://json-schema.org/draft/2020-12/schema");
  EXPECT_EQ(whole["additionalProperties"], false);
  const auto at = [&](const std::string& place) {
    Json found = whole[Json::json_pointer("/properties" + place)];
    if (found.is_object()) found.erase("description");
    return found.dump();
  };
  EXPECT_EQ(at("/name"), R"({"type":"string","minLength":1,"maxLength":50})");
  EXPECT_EQ(at("/lockout/properties/on"),
            R"({"type":"integer","minimum":0,"maximum":999,"default":30})");
  EXPECT_EQ(at("/lockout/properties/contact"),
            R"({"enum":["unused","power off","continue"],"default":"unused"})");
  EXPECT_EQ(at("/power/properties/second_off/type"), R"(["object","null"])");
  EXPECT_EQ(at("/power/properties/second_off/properties/command/enum").find(R"("")"),
            std::string::npos);
  EXPECT_EQ(at("/screen/required"), R"(["device"])");
  EXPECT_EQ(at("/transmitters/maxItems"), "3");
  EXPECT_EQ(at("/transmitters/items/properties/label/pattern"), R"("^[^ ](.*[^ ])?$")");
}

}  // namespace
}  // namespace answers
