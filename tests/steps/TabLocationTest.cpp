#include <gtest/gtest.h>

#include <fstream>

#include "forms/Paths.h"
#include "forms/TextBox.h"
#include "tests/wizard/Wizard.h"

namespace {

using forms::Icon;
using forms::TextBox;
using tests::Wizard;

constexpr const char* digitMessage = "Names cannot begin with digits 0-9.";

class TabLocationTest : public testing::Test {
 protected:
  void run(const std::function<void()>& script) {
    wizard.run([&] {
      wizard.goTo("Name and Location");
      script();
    });
  }

  TextBox& name() { return wizard.control<TextBox>("txtSystemName"); }
  std::string location() { return wizard.text("txtLocation"); }
  std::string folder(const std::string& system) {
    return forms::fromMachinePath(wizard.systemsFolder()) + "\\" + system;
  }
  void expectNameMessage(const std::string& text) {
    wizard.desktop.expectMessage("Orlena", text, forms::Buttons::ok, Icon::information);
  }
  int callsOf(const std::string& operation) {
    int count = 0;
    for (const auto& call : wizard.host->journal().calls()) {
      if (call.starts_with(operation)) ++count;
    }
    return count;
  }

  Wizard wizard;
};

TEST_F(TabLocationTest, FolderFollowsTheName) {
  run([&] {
    EXPECT_EQ(location(), folder("My Orlena System"));
    wizard.enter("txtSystemName", "Board Room ");
    EXPECT_EQ(location(), folder("Board Room\\"));
    EXPECT_EQ(wizard.control("txtLocation").toolTip(), folder(""));
    EXPECT_TRUE(wizard.document().get_Modified());
    wizard.clickInWindow("cmdSave");
    EXPECT_TRUE(std::filesystem::exists(wizard.systemFile("Board Room")));
    EXPECT_EQ(wizard.document().get_Name(), "Board Room");
    EXPECT_EQ(wizard.document().get_Path(), folder("Board Room\\"));
    EXPECT_EQ(name().text(), "Board Room ");
  });
}

TEST_F(TabLocationTest, RefusedNameComesBackWithItsCaret) {
  run([&] {
    wizard.enter("txtSystemName", "");
    expectNameMessage(digitMessage);
    wizard.user.type(name(), "1");
    EXPECT_EQ(name().text(), "");

    wizard.user.type(name(), "Rom");
    name().select(2, 0);
    expectNameMessage(
        "Names can not contain the characters ;:,'\\/*?\"<>|[] or any extended ASCII characters.");
    wizard.user.type(name(), "*");
    EXPECT_EQ(name().text(), "Rom");
    EXPECT_EQ(name().selectionStart(), 2);
    wizard.user.type(name(), "\\o");
    EXPECT_EQ(name().text(), "Room");

    expectNameMessage(
        "Names can not contain the characters ;:,'\\/*?\"<>|[] or any extended ASCII characters.");
    wizard.enter("txtSystemName", "a\\b");
    EXPECT_EQ(name().text(), "Room");
    EXPECT_EQ(location(), folder("Room\\"));
  });
}

TEST_F(TabLocationTest, LongestNameIsFiftyCharacters) {
  run([&] {
    wizard.enter("txtSystemName", std::string(60, 'n'));
    EXPECT_EQ(name().text(), std::string(50, 'n'));
  });
}

TEST_F(TabLocationTest, EmptyNameKeepsTheParentFolderAndAsksForAName) {
  run([&] {
    for (int i = 0; i < 3; ++i) {
      wizard.enter("txtSystemName", "");
      EXPECT_EQ(location(), folder("\\"));
      wizard.user.type(name(), "a");
      EXPECT_EQ(location(), folder("a\\"));
    }
    wizard.enter("txtSystemName", "");
    expectNameMessage("Please enter a system name to continue.");
    wizard.desktop.expectMessageWith(Icon::exclamation, "");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(wizard.currentStep(), "Name and Location");
    EXPECT_TRUE(name().hasFocus());
    wizard.user.type(name(), "Room");
  });
}

TEST_F(TabLocationTest, AcceptedFolderIsNotAskedForAgain) {
  run([&] {
    wizard.enter("txtSystemName", "Room");
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(callsOf("CreateProjectFolder"), 1);
    wizard.clickInWindow("cmdBack");
    wizard.clickInWindow("cmdNext");
    wizard.clickInWindow("cmdSave");
    EXPECT_EQ(callsOf("CreateProjectFolder"), 1);
    ASSERT_EQ(wizard.host->openSystems().size(), 1U);
    EXPECT_EQ(wizard.host->openSystems().front().first, folder("Room\\"));
  });
}

TEST_F(TabLocationTest, BrowsedFolderTakesTheNameAndMovesTheRegistration) {
  const tests::TemporaryFolder elsewhere;
  run([&] {
    const std::string parent = forms::fromMachinePath(elsewhere.path());
    wizard.desktop.expectFolderDialog("Save your system in this folder:", "");
    wizard.click("cmdBrowse");
    EXPECT_EQ(location(), folder("My Orlena System"));

    wizard.desktop.expectFolderDialog("Save your system in this folder:", parent);
    wizard.click("cmdBrowse");
    EXPECT_EQ(wizard.desktop.lastFolderDialog().initialFolder, folder("My Orlena System"));
    EXPECT_EQ(location(), parent + "\\My Orlena System\\");
    wizard.host->journal().clear();
    wizard.clickInWindow("cmdNext");
    EXPECT_EQ(callsOf("CreateProjectFolder"), 0);
    EXPECT_EQ(callsOf("ResetApplicationStatus"), 1);
    EXPECT_EQ(callsOf("SetApplicationStatus"), 1);
  });
}

TEST_F(TabLocationTest, TabStopsFollowTheStep) {
  run([&] {
    EXPECT_TRUE(name().tabStop());
    TextBox& box = name();
    wizard.clickInWindow("cmdNext");
    EXPECT_FALSE(box.tabStop());
  });
}

}  // namespace
