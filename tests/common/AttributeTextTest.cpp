#include "common/AttributeText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/Application.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

using common::FindAttribute;
using common::GetAttributeValue;
using common::SetAttributeValue;

TEST(AttributeText, findsValueWhereverTheKeyStands) {
  struct Case {
    std::string name, data, key, value;
  };
  const std::vector<Case> cases{
      {"first entry", "Delay=30;Name=Ada;", "Delay", "30"},
      {"key in another case", "Delay=30;", "dELAY", "30"},
      {"last entry without its end", "Delay=30;Name=Ada", "Name", "Ada"},
      {"empty value", "Name=;Delay=30;", "Name", ""},
      {"key that another key begins with", "Time 10=a;Time 1=b;", "Time 1", "b"},
      {"key that stands in a value first", "Name=Delay 5;Delay=30;", "Delay", "30"},
      {"value with separators", "Name(9)=a;b=c;def;Delay=30;", "Name", "a;b=c;def"},
      {"entry behind a value with separators", "Name(9)=a;b=c;def;Delay=30;", "Delay", "30"},
      {"length in characters, not bytes", "Name(4)=\u00fc;\u00fc\u4e2d;Delay=30;", "Name",
       "\u00fc;\u00fc\u4e2d"},
      {"length beyond the end", "Name(99)=a;b", "Name", "a;b"},
      {"no length in the parentheses", "Name(x)=a;", "Name(x)", "a"},
      {"longer key with the same end", "My Delay=30;", "Delay", "30"},
      {"absent", "Name=Ada;", "Delay", ""},
      {"key without a value", "Delay", "Delay", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(GetAttributeValue(c.data, c.key), c.value) << c.name;
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
  struct Case {
    std::string name, data, key, value, result;
  };
  const std::vector<Case> cases{
      {"new in an empty text", "", "Delay", "30", "Delay=30;"},
      {"new behind an entry without its end", "Name=Ada", "Delay", "30", "Name=Ada;Delay=30;"},
      {"in the middle", "A=1;B=2;C=3;", "B", "22", "A=1;B=22;C=3;"},
      {"to empty", "A=1;B=2;", "A", "", "A=;B=2;"},
      {"to a value with a separator", "A=1;B=2;", "A", "x;y", "A(3)=x;y;B=2;"},
      {"back to a plain value", "A(3)=x;y;B=2;", "A", "1", "A=1;B=2;"},
      {"length in characters", "", "A", "\u00fc=\u4e2d", "A(3)=\u00fc=\u4e2d;"},
      {"key in another case", "Delay=30;", "DELAY", "5", "DELAY=5;"},
  };
  for (const Case& c : cases) {
    std::string data = c.data;
    EXPECT_TRUE(SetAttributeValue(data, c.key, c.value)) << c.name;
    EXPECT_EQ(data, c.result) << c.name;
    EXPECT_EQ(GetAttributeValue(data, c.key), c.value) << c.name;
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

TEST(AttributeText, numberIsTheLeadingOneRoundedHalfToEven) {
  EXPECT_EQ(common::GetAttributeValueInt("Delay= 12 s;", "Delay"), 12);
  EXPECT_EQ(common::GetAttributeValueInt("Delay=2.5;", "Delay"), 2);
  EXPECT_EQ(common::GetAttributeValueInt("Delay=-32768.4;", "Delay"), -32768);
  EXPECT_EQ(common::GetAttributeValueInt("Delay=soon;", "Delay"), 0);
  EXPECT_EQ(common::GetAttributeValueLong("Delay=65536;", "Delay"), 65536);
}

TEST(AttributeText, numberTooLargeForItsTypeIsToldAndReadsZero) {
  tests::ScriptedDesktop desktop;
  const forms::Application application(desktop, "\\program");
  desktop.expectMessage("Overflow Error",
                        "Overflow error in GetAttributeValueInt: \r\nData: Delay=32768;\r\n"
                        "Key: Delay\r\nSeparator: ;\r\n"
                        "This error should be reported to Velmondo Technical Support.",
                        forms::Buttons::ok, forms::Icon::exclamation);
  EXPECT_EQ(common::GetAttributeValueInt("Delay=32768;", "Delay"), 0);
  desktop.expectMessage("Overflow Error",
                        "Overflow error in GetAttributeValueLong: \r\nData: Delay=1e10;\r\n"
                        "Key: Delay\r\nSeparator: ;\r\n"
                        "This error should be reported to Velmondo Technical Support.",
                        forms::Buttons::ok, forms::Icon::exclamation);
  EXPECT_EQ(common::GetAttributeValueLong("Delay=1e10;", "Delay"), 0);
}

}  // namespace
