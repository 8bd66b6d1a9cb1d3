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

TEST_F(CommonFunctionsTest, nameRuleThatIsBrokenFirstDecides) {
  const std::string digit = "Names cannot begin with digits 0-9.";
  const std::string empty = "Names must have at least one character, excluding the extension.";
  const std::string tooLong = "Names cannot exceed 50 characters.";
  const std::string illegal =
      "Names can not contain the characters ;:,'\\/*?\"<>|[] or any extended ASCII characters.";
  using Case = std::pair<std::string, std::string>;
  for (const auto& [name, fault] :
       {Case{"Room 4 - (blue) #1", ""}, Case{std::string(50, 'x'), ""}, Case{"", empty},
        Case{" ", ""}, Case{"1:" + std::string(60, 'x'), digit},
        Case{std::string(51, 'x'), tooLong}, Case{std::string(51, ':'), tooLong},
        Case{"Room\\4", illegal}, Case{"Room [4]", illegal}, Case{"Caf\u00e9", illegal},
        Case{"Room\u0080", illegal}, Case{"Room \u0153", ""}}) {
    std::string message;
    EXPECT_EQ(common::CheckValidName(name, false, message), fault.empty()) << name;
    EXPECT_EQ(message, fault) << name;
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

TEST_F(CommonFunctionsTest, valueInsideIsTheWholeNumberThatWasTyped) {
  using Case = std::pair<std::string, std::string>;
  for (const auto& [text, value] :
       {Case{" 30 ", "30"}, Case{"2.5", "2"}, Case{"3.5", "4"}, Case{"7 s", "7"}, Case{"", "0"},
        Case{"soon", "0"}, Case{"-0", "0"}, Case{"1234567", "123456"}, Case{"1e3", "1000"},
        Case{"\u4e2d5", "0"}}) {
    bool outOfRange = true;
    const common::ValueRange range{.sLabel = "It", .iMax = 200000};
    EXPECT_EQ(common::CheckValueRange(text, range, outOfRange), value) << text;
    EXPECT_FALSE(outOfRange) << text;
  }
}

TEST_F(CommonFunctionsTest, valueOutsideIsToldAndKeptOrReset) {
  struct Case {
    std::string text, message, value;
    common::ValueRange range{.sLabel = "The delay", .iMax = 999};
  };
  const std::vector<Case> cases{
      {"-1", "The delay cannot be negative.\r\nPlease set another value.", "-1"},
      {"abc",
       "The delay is set too low (The minimum is 1).\r\nPlease set another value.",
       "0",
       {.sLabel = "The delay", .iMin = 1, .iMax = 999}},
      {"1000",
       "The delay is set too high (The maximum is 999).\r\nThe value will be reset to 5.",
       "5",
       {.sLabel = "The delay", .iMax = 999, .bReset = true, .iResetValue = 5}}};
  for (const Case& c : cases) {
    bool outOfRange = c.range.bReset;
    desktop.expectMessage("Orlena", c.message);
    EXPECT_EQ(common::CheckValueRange(c.text, c.range, outOfRange), c.value) << c.text;
    EXPECT_EQ(outOfRange, !c.range.bReset) << c.text;
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

}  // namespace
