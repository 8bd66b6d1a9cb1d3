#include "forms/Paths.h"

#include "tests/forms/Desk.h"
#include "tests/support/Files.h"

namespace tests {
namespace {

class PathsTest : public Desk {
 protected:
  PathsTest() {
    std::filesystem::create_directories(root / "Lab \u00e4" / "Panels");
    writeFile(root / "Lab \u00e4" / "Lab.tsy", "{}");
    application.changeFolder(forms::fromMachinePath(root));
  }
  TemporaryFolder folder;
  std::filesystem::path root = folder.path();
};

TEST_F(PathsTest, BecomeTheMachines) {
  EXPECT_EQ(forms::toMachinePath("\\home\\Lab\\Lab.tsy"), "/home/Lab/Lab.tsy");
  EXPECT_EQ(forms::toMachinePath("\\"), "/");
  EXPECT_EQ(forms::toMachinePath("Lab\\Lab.tsy"), root / "Lab/Lab.tsy");
  EXPECT_EQ(forms::fromMachinePath("/home/Lab/"), "\\home\\Lab\\");
  EXPECT_THROW(forms::fromMachinePath("/home/a\\b"), forms::Error);
  EXPECT_EQ(forms::fileNameOf("\\Lab\\Lab.tsy"), "Lab.tsy");
  EXPECT_EQ(forms::folderOf("\\Lab\\Lab.tsy"), "\\Lab\\");
  EXPECT_EQ(forms::fileNameOf("Lab.tsy"), "Lab.tsy");
  EXPECT_EQ(forms::folderOf("Lab.tsy"), "");
}

TEST_F(PathsTest, CurrentFolderIsTheApplicationsOwn) {
  const std::filesystem::path machines = std::filesystem::current_path();
  const std::string before = application.currentFolder();
  application.changeFolder("Lab \u00e4\\Panels\\..\\");
  EXPECT_EQ(application.currentFolder(), before + "\\Lab \u00e4");
  EXPECT_TRUE(application.findsFile("Lab.tsy"));
  EXPECT_EQ(std::filesystem::current_path(), machines);
  EXPECT_EQ(raisedBy([&] { application.changeFolder("Panels\\missing"); }).number(),
            forms::errors::pathNotFound);
  EXPECT_EQ(application.currentFolder(), before + "\\Lab \u00e4");
  application.changeFolder("\\");
  EXPECT_EQ(application.currentFolder(), "\\");
}

TEST_F(PathsTest, FindsFilesAndFolders) {
  using Case = std::tuple<const char*, bool, bool>;  // whether it is a file, and a folder
  for (const auto& [path, file, isFolder] :
       {Case{"Lab \u00e4\\Lab.tsy", true, false}, Case{"Lab \u00e4\\*.tsy", true, false},
        Case{"Lab \u00e4\\L?b.*", true, false}, Case{"Lab \u00e4\\*a*b*y", true, false},
        Case{"Lab \u00e4\\*.tsa", false, false}, Case{"Lab \u00e4\\Lab?.tsy", false, false},
        Case{"Lab \u00e4\\Pan*", false, false}, Case{"missing\\*", false, false},
        Case{"Lab \u00e4\\Panels", false, true}, Case{"Lab \u00e4\\Panels\\", false, true},
        Case{"Lab \u00e4\\Lab.tsy\\x", false, false}, Case{"", false, false}}) {
    EXPECT_EQ(application.findsFile(path), file) << path;
    EXPECT_EQ(application.findsFolder(path), isFolder) << path;
  }
  const std::string tooLong(5000, 'x');
  EXPECT_FALSE(application.findsFile(tooLong) || application.findsFolder(tooLong));
}

}  // namespace
}  // namespace tests
