#include "answers/Schema.h"

#include <gtest/gtest.h>

namespace answers {
namespace {

using base::Json;

TEST(Schema, saysWhatEachAnswerMayBe) {
  const Json whole = schema(trellisar::DeviceLibrary(ORLENA_SOURCE_FOLDER "/data/library"));
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
  EXPECT_EQ(at("/power/properties/second_off/properties/command"),
            R"({"type":"string","minLength":1})");
  EXPECT_EQ(at("/screen/required"), R"(["device"])");
  EXPECT_EQ(at("/transmitters/maxItems"), "3");
  EXPECT_EQ(at("/transmitters/items/properties/label/pattern"), R"("^[^ ](.*[^ ])?$")");
}

}  // namespace
}  // namespace answers
