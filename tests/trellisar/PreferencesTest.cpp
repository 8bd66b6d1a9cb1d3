#include "trellisar/settings/Preferences.h"

#include "tests/trellisar/World.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using trellisar::AddressBook;
using trellisar::Preferences;

class PreferencesTest : public testing::Test {
 protected:
  Preferences open() {
    return Preferences(file, [this](const std::string& problem) { told.push_back(problem); });
  }

  TemporaryFolder folder;
  fs::path file = folder / "deep" / "preferences.json";
  std::vector<std::string> told;
};

TEST_F(PreferencesTest, AreKept) {
  {
    Preferences preferences = open();
    preferences.setDefaultFolder("\\rooms");
    for (int i = 0; i < 12; ++i) preferences.remember("\\" + std::to_string(i));
    preferences.remember("\\5");
  }
  const Preferences again = open();
  EXPECT_EQ(again.defaultFolder(), "\\rooms");
  ASSERT_EQ(again.recentSystems().size(), 10u);
  EXPECT_EQ(again.recentSystems().front(), "\\5");
  EXPECT_EQ(again.recentSystems()[1], "\\11");
  EXPECT_TRUE(told.empty());
}

TEST_F(PreferencesTest, OnesThatCantBeReadAreKeptAsideAndToldOnce) {
  const std::pair<std::string, std::string> cases[] = {
      {"{\"format\": \"trellisar-prefer", "The file is damaged or incomplete."},
      {R"({"format": "trellisar-preferences", "version": 2, "colours": []})",
       "version: the file is of version 2; this program reads version 1"},
      {R"({"format": "trellisar-preferences", "version": 1, "default_folder": "\\rooms",
           "recent_systems": [], "address_book": {"receivers": [], "current": 1}})",
       "address_book.current: must be a whole number from 0 to 0"},
  };
  fs::create_directory(file.parent_path());
  std::string aside = file.string() + ".unreadable";
  for (const auto& [content, why] : cases) {
    writeFile(file, content);
    EXPECT_EQ(Preferences::lookedAt(file).defaultFolder(), "");
    EXPECT_EQ(base::readFile(file), content) << "who looks changes nothing";

    told.clear();
    Preferences preferences = open();
    EXPECT_EQ(preferences.defaultFolder(), "") << "nothing is read by halves";
    preferences.remember("\\Room.tsy");
    open();
    ASSERT_EQ(told.size(), 1u) << why;
    expectHas(told[0], why);
    expectHas(told[0], "is kept in \"" + aside + "\"");
    EXPECT_EQ(base::readFile(aside), content);
    EXPECT_EQ(open().recentSystems(), std::vector<std::string>{"\\Room.tsy"});
    aside = file.string() + ".unreadable-" + (aside.ends_with("2") ? "3" : "2");
  }
}

TEST_F(PreferencesTest, TwoWindowsKeepWhatTheOtherAdded) {
  open().setAddressBook({{{"Hall", "10.0.0.1"}, {"Old", "10.0.0.2"}}, 0});
  Preferences one = open();
  Preferences other = open();
  one.remember("\\One.tsy");
  one.setAddressBook({{{"Hall", "10.0.0.1"}, {"Old", "10.0.0.2"}, {"One", "10.0.0.3"}}, 2});
  other.setAddressBook({{{"Hall", "10.0.0.1"}, {"Other", "10.0.0.4"}}, 0});
  other.remember("\\Other.tsy");
  other.setDefaultFolder("\\rooms");
  one.setIPSettings({"10.0.0.9", "", "", ""});

  const Preferences kept = open();
  EXPECT_EQ(kept.recentSystems(), (std::vector<std::string>{"\\Other.tsy", "\\One.tsy"}));
  EXPECT_EQ(kept.defaultFolder(), "\\rooms");
  EXPECT_EQ(kept.ipSettings().address, "10.0.0.9");
  const AddressBook expected{{{"Hall", "10.0.0.1"}, {"One", "10.0.0.3"}, {"Other", "10.0.0.4"}}, 1};
  EXPECT_EQ(kept.addressBook(), expected) << "the one in use was chosen by the first window alone";
}

TEST_F(PreferencesTest, ChangesThatCantBeKeptAreToldOnceAndHoldMeanwhile) {
  folder.write("deep", "a file where the folder should be");
  Preferences preferences = open();
  preferences.setDefaultFolder("\\rooms");
  preferences.remember("\\Room.tsy");
  EXPECT_EQ(preferences.defaultFolder(), "\\rooms");
  ASSERT_EQ(told.size(), 1u);
  expectHas(told[0], "a file stands where a folder should be");
}

}  // namespace
}  // namespace tests
