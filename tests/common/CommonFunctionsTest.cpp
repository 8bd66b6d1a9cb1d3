#include "common/CommonFunctions.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/Application.h"
#include "forms/Error.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

class CommonFunctionsTest : public testing::Test {
 protected:
  CommonFunctionsTest() { application.setTitle("Orlena"); }

  tests::ScriptedDesktop desktop;
  forms::Application application{desktop, "\\program"};
};

std::string repeated(const std::string& text, int count) {
  std::string result;
  for (int i = 0; i < count; ++i) result += text;
  return result;
}

TEST_F(CommonFunctionsTest, nameRuleThatIsBrokenFirstDecides) {
  const std::string digit = "Names cannot begin with digits 0-9.";
  const std::string empty = "Names must have at least one character, excluding the extension.";
  const std::string tooLong = "Names cannot exceed 50 characters.";
  const std::string illegal =
      "Names can not contain the characters ;:,'\\/*?\"<>|[] or any extended ASCII characters.";
  struct Case {
    std::string name, fault;
  };
  const std::vector<Case> cases{
      {"Room 4 - (blue) #1", ""},
      {repeated("x", 50), ""},
      {repeated("\u4e2d", 50), ""},
      {"", empty},
      {" ", ""},
      {"1:" + repeated("x", 60), digit},
      {repeated("x", 51), tooLong},
      {repeated(":", 51), tooLong},
      {"Room\\4", illegal},
      {"Room [4]", illegal},
      {"Caf\u00e9", illegal},
      {"Room\u0080", illegal},
      {"Room \u0153", ""},
  };
  for (const Case& c : cases) {
    std::string message;
    EXPECT_EQ(common::CheckValidName(c.name, false, message), c.fault.empty()) << c.name;
    EXPECT_EQ(message, c.fault) << c.name;
  }
}

TEST_F(CommonFunctionsTest, nameWithExtraCharacterIsRefusedAndShown) {
  const std::string text =
      "Names can not contain the characters ;:,'\\/*?\"<>|.#[] or any extended ASCII characters.";
  desktop.expectMessage("Orlena", text, forms::Buttons::ok, forms::Icon::information);
  std::string message;
  EXPECT_FALSE(common::CheckValidName("Room #4", true, message, ".#"));
  EXPECT_EQ(message, text);
}

TEST_F(CommonFunctionsTest, firstCharacterIsFoundByItsPlaceInCharacters) {
  std::int32_t pos = -1;
  EXPECT_TRUE(common::FindFirstChar("xy", "\u4e2d\u4e2dy", pos, false));
  EXPECT_EQ(pos, 3);
  EXPECT_FALSE(common::FindFirstChar("xy", "\u00e9", pos, false));
  EXPECT_EQ(pos, 3);
  EXPECT_TRUE(common::IsAllDigits(""));
  EXPECT_FALSE(common::IsAllDigits("12a"));
}

TEST_F(CommonFunctionsTest, valueInsideIsTheWholeNumberThatWasTyped) {
  struct Case {
    std::string text, value;
  };
  const std::vector<Case> cases{
      {" 30 ", "30"}, {"2.5", "2"}, {"3.5", "4"},          {"7 s", "7"},    {"", "0"},
      {"soon", "0"},  {"-0", "0"},  {"1234567", "123456"}, {"1e3", "1000"}, {"\u4e2d5", "0"}};
  for (const Case& c : cases) {
    bool outOfRange = true;
    EXPECT_EQ(common::CheckValueRange(c.text, {.sLabel = "It", .iMax = 200000}, outOfRange),
              c.value)
        << c.text;
    EXPECT_FALSE(outOfRange) << c.text;
  }
}

TEST_F(CommonFunctionsTest, valueOutsideIsToldAndKeptOrReset) {
  struct Case {
    std::string text;
    common::ValueRange range;
    std::string message, value;
    bool outOfRange;
  };
  const std::vector<Case> cases{
      {"-1",
       {.sLabel = "The delay", .iMax = 999},
       "The delay cannot be negative.\r\nPlease set another value.",
       "-1",
       true},
      {"abc",
       {.sLabel = "The delay", .iMin = 1, .iMax = 999},
       "The delay is set too low (The minimum is 1).\r\nPlease set another value.",
       "0",
       true},
      {"1000",
       {.sLabel = "The delay", .iMax = 999, .bReset = true, .iResetValue = 5},
       "The delay is set too high (The maximum is 999).\r\nThe value will be reset to 5.",
       "5",
       false},
      {"9e9999",
       {.sLabel = "The delay", .iMax = 999, .bReset = true},
       "The delay is set too high (The maximum is 999).\r\nThe value will be reset to 0.",
       "0",
       false},
  };
  for (const Case& c : cases) {
    bool outOfRange = !c.outOfRange;
    desktop.expectMessage("Orlena", c.message);
    EXPECT_EQ(common::CheckValueRange(c.text, c.range, outOfRange), c.value) << c.text;
    EXPECT_EQ(outOfRange, c.outOfRange) << c.text;
  }
  bool outOfRange = false;
  EXPECT_EQ(common::CheckValueRange("-5", {.iMax = 9, .bShowMessage = false}, outOfRange), "-5");
  EXPECT_TRUE(outOfRange);
}

std::string sorted(const std::string& words, const common::SortOptions& options) {
  std::vector<std::shared_ptr<std::string>> items;
  for (std::size_t start = 0; start < words.size();) {
    const std::size_t end = std::min(words.find(' ', start), words.size());
    items.push_back(std::make_shared<std::string>(words.substr(start, end - start)));
    start = end + 1;
  }
  std::string result;
  for (const auto& item : common::SortCollection(
           items, [](const std::string& text) { return text; }, options)) {
    result += (result.empty() ? "" : " ") + *item;
  }
  return result;
}

TEST_F(CommonFunctionsTest, sortingKeepsTheOrderOfEqualItems) {
  EXPECT_EQ(sorted("beta Alpha ALPHA alpha 10 9", {}), "10 9 Alpha ALPHA alpha beta");
  EXPECT_EQ(sorted("10 9 9.0 x -1", {.bNumeric = true}), "-1 x 9 9.0 10");
  EXPECT_EQ(sorted("a-c ab -b", {.sIgnoreText = "-"}), "ab a-c -b");
  EXPECT_EQ(sorted("b a", {.bKeyed = true}), "a b");
  EXPECT_THROW(sorted("a b A", {.bKeyed = true}), forms::Error);
}

TEST_F(CommonFunctionsTest, pixelsBeyondTheTypeAreHeld) {
  EXPECT_EQ(common::PixelsToTwipsX(801), 12015);
  EXPECT_EQ(common::PixelsToTwipsY(3000), 32767);
}

}  // namespace
