#include "common/AttributeText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "forms/Application.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

using common::FindAttribute;
using common::GetAttributeValue;
using common::SetAttributeValue;

TEST(AttributeText, findsValueWhereverTheKeyStands) {
  using Case = std::array<std::string, 3>;
  for (const auto& [data, key, value] :
       {Case{"Delay=30;Name=Ada;", "Delay", "30"}, Case{"Delay=30;", "dELAY", "30"},
        Case{"Delay=30;Name=Ada", "Name", "Ada"}, Case{"Name=;Delay=30;", "Name", ""},
        Case{"Time 10=a;Time 1=b;", "Time 1", "b"}, Case{"Name=Delay 5;Delay=30;", "Delay", "30"},
        Case{"Name(9)=a;b=c;def;Delay=30;", "Name", "a;b=c;def"},
        Case{"Name(9)=a;b=c;def;Delay=30;", "Delay", "30"},
        Case{"Name(4)=\u00fc;\u00fc\u4e2d;Delay=30;", "Name", "\u00fc;\u00fc\u4e2d"},
        Case{"Name(99)=a;b", "Name", "a;b"}, Case{"Name(x)=a;", "Name(x)", "a"},
        Case{"My Delay=30;", "Delay", "30"}, Case{"Name=Ada;", "Delay", ""},
        Case{"Delay", "Delay", ""}}) {
    EXPECT_EQ(GetAttributeValue(data, key), value) << data;
  }
}

TEST(AttributeText, longerKeyCountsOnlyWhereItIsAllowed) {
  const std::string data = "First=1;My Delay=30;";
  common::AttributePlace place;
  ASSERT_TRUE(FindAttribute(data, "Delay", place));
  EXPECT_EQ(place.sFullKey, "My Delay");
  EXPECT_EQ(place.iKeyPos, 12);
  EXPECT_EQ(place.iValuePos, 18);
  EXPECT_EQ(place.iValueLength, 2);

  EXPECT_FALSE(FindAttribute(data, "Delay", place, {.bAllowSuffix = false}));
  EXPECT_EQ(place.iKeyPos, 0);
}

TEST(AttributeText, setReplacesInPlaceAndAppendsWhatIsNew) {
  using Case = std::array<std::string, 4>;
  for (const auto& [before, key, value, after] :
       {Case{"", "Delay", "30", "Delay=30;"}, Case{"Name=Ada", "Delay", "30", "Name=Ada;Delay=30;"},
        Case{"A=1;B=2;C=3;", "B", "22", "A=1;B=22;C=3;"}, Case{"A=1;B=2;", "A", "", "A=;B=2;"},
        Case{"A=1;B=2;", "A", "x;y", "A(3)=x;y;B=2;"}, Case{"A(3)=x;y;B=2;", "A", "1", "A=1;B=2;"},
        Case{"", "A", "\u00fc=\u4e2d", "A(3)=\u00fc=\u4e2d;"},
        Case{"Delay=30;", "DELAY", "5", "DELAY=5;"}}) {
    std::string data = before;
    EXPECT_TRUE(SetAttributeValue(data, key, value)) << before;
    EXPECT_EQ(data, after);
    EXPECT_EQ(GetAttributeValue(data, key), value) << after;
  }
}

TEST(AttributeText, onlyThreeWordsAreTrue) {
  for (const std::string value : {"Y", "yes", "True"}) {
    EXPECT_TRUE(common::GetAttributeValueBool("Flag=" + value + ";", "Flag")) << value;
  }
  for (const std::string value : {"", "1", "-1", "No", "Yes ", "Y|YES"}) {
    EXPECT_FALSE(common::GetAttributeValueBool("Flag=" + value + ";", "Flag")) << value;
  }
}

TEST(AttributeText, numberTooLargeForItsTypeIsToldAndReadsZero) {
  tests::ScriptedDesktop desktop;
  const forms::Application application(desktop, "\\program");
  const auto expectOverflow = [&](const std::string& function) {
    desktop.expectMessage("Overflow Error",
                          "Overflow error in " + function +
                              ": \r\nData: Delay=1e10;\r\nKey: Delay\r\nSeparator: ;\r\n"
                              "This error should be reported to Velmondo Technical Support.",
                          forms::Buttons::ok, forms::Icon::exclamation);
  };
  expectOverflow("GetAttributeValueInt");
  EXPECT_EQ(common::GetAttributeValueInt("Delay=1e10;", "Delay"), 0);
  expectOverflow("GetAttributeValueLong");
  EXPECT_EQ(common::GetAttributeValueLong("Delay=1e10;", "Delay"), 0);
}

}  // namespace
