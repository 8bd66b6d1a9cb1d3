#include "tests/steps/StepTest.h"

namespace {

using forms::Icon;
using forms::TextBox;

class TabLocationTest : public tests::StepTest {
 protected:
  TabLocationTest() : StepTest("Name and Location") {}

  TextBox& name() { return control<TextBox>("txtSystemName"); }
  std::string location() { return text("txtLocation"); }
  /// As the page shows it.
  std::string folder(const std::string& system) { return systemsFolder().string() + "/" + system; }
  void expectNameMessage(const std::string& text) { expectMessage(text, Icon::information); }
};

TEST_F(TabLocationTest, FolderFollowsTheName) {
  onStep([&] {
    EXPECT_EQ(location(), folder("My Orlena System"));
    enter("txtSystemName", "Board Room ");
    EXPECT_EQ(location(), folder("Board Room/"));
    EXPECT_EQ(control("txtLocation").toolTip(), folder(""));
    EXPECT_TRUE(isModified());
    leave();
    clickInWindow("cmdSave");
    EXPECT_EQ(callsOf("CreateProjectFolder"), 1) << "asked for once";
    ASSERT_EQ(host->openSystems().size(), 1U);
    EXPECT_EQ(host->openSystems().front().first, forms::fromMachinePath(folder("Board Room/")));
    EXPECT_TRUE(std::filesystem::exists(systemFile("Board Room")));
    EXPECT_EQ(document().get_Path(), forms::fromMachinePath(folder("Board Room/")));
    EXPECT_EQ(name().text(), "Board Room ");
  });
}

TEST_F(TabLocationTest, RefusedNameComesBackWithItsCaret) {
  const std::string illegal =
      "Names can not contain the characters ;:,'\\/*?\"<>|[] or any extended ASCII characters.";
  onStep([&] {
    enter("txtSystemName", "");
    expectNameMessage("Names cannot begin with digits 0-9.");
    user.type(name(), "1");
    EXPECT_EQ(name().text(), "");

    user.type(name(), "Rom");
    name().select(2, 0);
    expectNameMessage(illegal);
    user.type(name(), "*");
    EXPECT_EQ(name().text(), "Rom");
    EXPECT_EQ(name().selectionStart(), 2);
    user.type(name(), "\\o");
    EXPECT_EQ(name().text(), "Room");

    expectNameMessage(illegal);
    enter("txtSystemName", "a\\b");
    EXPECT_EQ(name().text(), "Room");
    EXPECT_EQ(location(), folder("Room/"));
  });
}

TEST_F(TabLocationTest, EmptyNameKeepsTheParentFolderAndAsksForAName) {
  onStep([&] {
    for (int i = 0; i < 2; ++i) {
      enter("txtSystemName", "");
      EXPECT_EQ(location(), folder("/"));
      user.type(name(), "a");
      EXPECT_EQ(location(), folder("a/"));
    }
    enter("txtSystemName", "");
    expectNameMessage("Please enter a system name to continue.");
    next();
    EXPECT_TRUE(name().hasFocus());
    user.type(name(), "Room");
  });
}

TEST_F(TabLocationTest, NameThatNoFileCanHaveIsToldOnceAndRefusesPageAndSave) {
  onStep([&] {
    for (const std::string& name :
         std::vector<std::string>{"..", ".", "Room\t1", {"Room\0", 5}, "  "}) {
      for (const char* button : {"cmdNext", "cmdSave"}) {
        enter("txtSystemName", name);
        desktop.expectMessageWith(Icon::information, "");
        clickInWindow(button);
        EXPECT_TRUE(control("txtSystemName").hasFocus());
      }
    }
    EXPECT_TRUE(std::filesystem::is_empty(systemsFolder()));
    enter("txtSystemName", "Room");
  });
}

TEST_F(TabLocationTest, BrowsedFolderTakesTheNameAndMovesTheRegistration) {
  const tests::TemporaryFolder elsewhere;
  onStep([&] {
    const std::string parent = elsewhere.path();
    const auto browse = [&](const std::string& answer) {
      desktop.expectFolderDialog("Save your system in this folder:", answer);
      click("cmdBrowse");
    };
    browse("");
    EXPECT_EQ(location(), folder("My Orlena System"));
    EXPECT_FALSE(isModified());
    browse(forms::fromMachinePath(parent));
    EXPECT_EQ(location(), parent + "/My Orlena System/");
    EXPECT_TRUE(isModified());
    host->journal().clear();
    next();
    EXPECT_EQ(callsOf("CreateProjectFolder"), 0);
    EXPECT_EQ(callsOf("ResetApplicationStatus"), 1);
    EXPECT_EQ(callsOf("SetApplicationStatus"), 1);

    goTo("Name and Location");
    for (const char* blank : {"", "  "}) {
      enter("txtSystemName", blank);
      desktop.expectMessageWith(Icon::information, "name");
      browse(forms::fromMachinePath(parent));
      enter("txtSystemName", "Room");
      EXPECT_EQ(location(), parent + "/Room/") << "holds the name typed afterwards";
    }
  });
}

}  // namespace
