#include <gtest/gtest.h>

#include "common/CommonFunctions.h"
#include "common/MCommonDialog.h"
#include "common/modBrowsePath.h"
#include "common/modHTMLHelp.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedDesktop.h"

namespace {

class PlatformTest : public testing::Test {
 protected:
  PlatformTest() { application.setTitle("Orlena"); }

  tests::ScriptedDesktop desktop;
  tests::TemporaryFolder folder;
  forms::Application application{desktop, forms::fromMachinePath(folder.path())};
};

TEST_F(PlatformTest, folderDialogOpensInTheProgramsFolderWithoutAnother) {
  desktop.expectFolderDialog("Save here:", "\\Rooms");
  EXPECT_EQ(common::BrowseForFolder(7, "Save here:", ""), "\\Rooms");
  EXPECT_EQ(desktop.lastFolderDialog().initialFolder, application.folder());
  EXPECT_EQ(desktop.lastFolderDialog().ownerHandle, 7);
  desktop.expectFolderDialog("Save here:", "");
  EXPECT_EQ(common::BrowseForFolder(7, "Save here:", "\\Rooms"), "");
  EXPECT_EQ(desktop.lastFolderDialog().initialFolder, "\\Rooms");
}

TEST_F(PlatformTest, saveDialogGivesThePathAndItsTitleOrNothing) {
  common::SaveFileDialog dialog{.sFileName = "LogFile.txt", .sDefaultExt = "txt"};
  desktop.expectSaveDialog("", "\\Logs\\Build.txt");
  EXPECT_TRUE(common::ShowSaveFileDialog(dialog));
  EXPECT_EQ(dialog.sFileName, "\\Logs\\Build.txt");
  EXPECT_EQ(dialog.sFileTitle, "Build.txt");
  EXPECT_EQ(desktop.lastFileDialog().fileName, "LogFile.txt");
  EXPECT_TRUE(desktop.lastFileDialog().asksBeforeReplacing);

  dialog.bNoOverwritePrompt = true;
  desktop.expectSaveDialog("", "");
  EXPECT_FALSE(common::ShowSaveFileDialog(dialog));
  EXPECT_EQ(dialog.sFileName + dialog.sFileTitle, "");
  EXPECT_FALSE(desktop.lastFileDialog().asksBeforeReplacing);
  EXPECT_EQ(desktop.lastFileDialog().filter, "All Files (*.*)| *.*");
}

TEST_F(PlatformTest, helpThatCannotBeShownIsTold) {
  desktop.expectMessage("Orlena", "There is no help file set for this application.",
                        forms::Buttons::ok, forms::Icon::exclamation);
  common::ShowHelpTopic(0, 62);

  application.setHelpFile("Orlena.chm");
  desktop.setHelpAnswer(0);
  desktop.expectMessage("Orlena",
                        "Error displaying Help Topic (62) for help file: Orlena.chm\r\n"
                        "Current folder: " +
                            forms::toMachinePath(application.currentFolder()).string(),
                        forms::Buttons::ok, forms::Icon::exclamation);
  common::ShowHelpTopic(0, 62);
}

TEST_F(PlatformTest, closingHelpGoesToTheProgramsFolder) {
  application.changeFolder("\\");
  EXPECT_TRUE(common::CloseAllHelp());
  EXPECT_EQ(application.currentFolder(), application.folder());
  EXPECT_EQ(desktop.helpClosings(), 1);

  std::filesystem::remove_all(folder.path());
  desktop.expectMessage(
      "Orlena", "Failed to initialize help system.\r\nPath not found: " + folder.path().string());
  EXPECT_FALSE(common::CloseAllHelp());
  EXPECT_EQ(desktop.helpClosings(), 1);
}

}  // namespace
