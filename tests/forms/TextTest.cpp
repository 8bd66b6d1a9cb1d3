#include "forms/Text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "forms/Numbers.h"

namespace tests {
namespace {

TEST(NumbersTest, LeadingNumber) {
  using Case = std::pair<const char*, double>;
  for (const auto& [text, number] :
       {Case{"", 0},      Case{"abc", 0},     Case{"  12", 12}, Case{"-5", -5},    Case{"+7x", 7},
        Case{"1.5", 1.5}, Case{"1.5.2", 1.5}, Case{".5", 0.5},  Case{"5.", 5},     Case{".", 0},
        Case{"-", 0},     Case{"- 5", 0},     Case{"1,5", 1},   Case{"1e3", 1000}, Case{"1e", 1},
        Case{"1e+", 1},   Case{"2E-1s", 0.2}, Case{"0x10", 0},  Case{"&H10", 0},   Case{"12 3", 12},
        Case{"\t12", 0},  Case{"inf", 0},     Case{"nan", 0},   Case{"1e-999", 0}, Case{"90s", 90},
        Case{"-0", 0}}) {
    EXPECT_EQ(forms::leadingNumber(text), number) << '"' << text << '"';
  }
  EXPECT_FALSE(std::signbit(forms::leadingNumber("-0")));
  EXPECT_EQ(forms::leadingNumber("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(forms::leadingNumber(std::string(400, '9')), std::numeric_limits<double>::max());
  EXPECT_EQ(forms::leadingNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(NumbersTest, RoundedAndHeldInTheirTypes) {
  using Case = std::tuple<double, std::int16_t, bool>;
  for (const auto& [value, held, fits] :
       {Case{0.5, 0, true}, Case{1.5, 2, true}, Case{2.5, 2, true}, Case{-0.5, 0, true},
        Case{-1.5, -2, true}, Case{-2.5, -2, true}, Case{2.4999, 2, true}, Case{2.5001, 3, true},
        Case{32767.4, 32767, true}, Case{32767.5, 32767, false}, Case{-32768.5, -32768, true},
        Case{-32769, -32768, false}, Case{1e300, 32767, false},
        Case{std::numeric_limits<double>::quiet_NaN(), 0, false}}) {
    EXPECT_EQ(forms::toInt16(value), held) << value;
    EXPECT_EQ(forms::fitsInt16(value), fits) << value;
  }
  EXPECT_EQ(forms::toInt32(1e300), 2147483647);
  EXPECT_EQ(forms::toInt32(-2147483649.0), std::numeric_limits<std::int32_t>::min());
  EXPECT_TRUE(forms::fitsInt32(2147483647.4));
  EXPECT_EQ(forms::absolute(-32768), 32767);
  EXPECT_EQ(forms::absolute(-120), 120);
}

TEST(TextTest, CountsCodePoints) {
  const std::string text = "a\u00e4\u20ac\U0001F600";
  EXPECT_EQ(forms::length(text), 4);
  EXPECT_EQ(forms::left(text, 2), "a\u00e4");
  EXPECT_EQ(forms::right(text, 2), "\u20ac\U0001F600");
  EXPECT_EQ(forms::withoutLast(text, 1), "a\u00e4\u20ac");
  for (const std::int32_t count : {4, 5}) {
    EXPECT_EQ(forms::left(text, count), text);
    EXPECT_EQ(forms::right(text, count), text);
    EXPECT_EQ(forms::withoutLast(text, count), "");
  }
  EXPECT_EQ(forms::fromCodePoints(forms::toCodePoints(text)), text);
}

TEST(TextTest, BytesThatAreNoUtf8CountAsOneEach) {
  using Case = std::tuple<const char*, const char*, std::int32_t>;
  for (const auto& [what, text, length] :
       {Case{"stray continuation", "a\x80z", 3}, Case{"overlong", "\xC0\xAF", 2},
        Case{"surrogate", "\xED\xA0\x80", 3}, Case{"above the last", "\xF4\x90\x80\x80", 4},
        Case{"cut off", "\xE2\x82", 2}, Case{"broken off by a letter", "\xE2\x82z", 3}}) {
    EXPECT_EQ(forms::length(text), length) << what;
    EXPECT_NE(forms::toCodePoints(text).find(char32_t{0xFFFD}), std::u32string::npos) << what;
  }
}

TEST(TextTest, Case) {
  using Case = std::pair<const char*, const char*>;
  for (const auto& [upper, lower] :
       {Case{"POWER [1]", "power [1]"}, Case{"\u00c4\u00d8\u0178", "\u00e4\u00f8\u00ff"},
        Case{"\u0141\u010c\u017d", "\u0142\u010d\u017e"},
        Case{"\u0391\u03a9\u038c", "\u03b1\u03c9\u03cc"}, Case{"\u0416\u0401", "\u0436\u0451"},
        Case{"\u00d7\u00f7\u00df", "\u00d7\u00f7\u00df"}}) {
    EXPECT_EQ(forms::lowerCase(upper), lower);
    EXPECT_EQ(forms::upperCase(lower), upper);
    EXPECT_TRUE(forms::equalsIgnoringCase(upper, lower));
  }
  EXPECT_LT(forms::compareIgnoringCase("alpha", "Beta"), 0);
  EXPECT_GT(forms::compareIgnoringCase("B", "a"), 0);
  EXPECT_LT(forms::compareIgnoringCase("ab", "ABC"), 0);
}

TEST(TextTest, TrimmedAndReplaced) {
  EXPECT_EQ(forms::trimmed("  a b\t "), "a b\t");
  EXPECT_EQ(forms::trimmed("   "), "");
  EXPECT_EQ(forms::replacedAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(forms::replacedAll("OL-RX1", "OL-", ""), "RX1");
}

}  // namespace
}  // namespace tests
