#include "forms/Paths.h"

#include <stdlib.h>

#include <filesystem>
#include <fstream>

#include "tests/forms/Desk.h"

namespace tests {
namespace {

class PathsTest : public Desk {
 protected:
  PathsTest() {
    std::filesystem::create_directories(root / "Lab \u00e4" / "Panels");
    std::ofstream(root / "Lab \u00e4" / "Lab.tsy") << "{}";
    application.changeFolder(forms::fromMachinePath(root));
  }
  ~PathsTest() override { std::filesystem::remove_all(root); }

  static std::filesystem::path uniqueFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "formsXXXXXX").string();
    return mkdtemp(name.data());
  }

  std::filesystem::path root = uniqueFolder();
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
  try {
    application.changeFolder("Panels\\missing");
    ADD_FAILURE();
  } catch (const forms::Error& error) {
    EXPECT_EQ(error.number(), forms::errors::pathNotFound);
  }
  EXPECT_EQ(application.currentFolder(), before + "\\Lab \u00e4");
  application.changeFolder("\\");
  EXPECT_EQ(application.currentFolder(), "\\");
}

TEST_F(PathsTest, FindsFilesAndFolders) {
  struct Case {
    const char* path;
    bool file;
    bool folder;
  };
  for (const Case& c : {Case{"Lab \u00e4\\Lab.tsy", true, false},
                        {"Lab \u00e4\\*.tsy", true, false},
                        {"Lab \u00e4\\L?b.*", true, false},
                        {"Lab \u00e4\\*a*b*y", true, false},
                        {"Lab \u00e4\\*.tsa", false, false},
                        {"Lab \u00e4\\Lab?.tsy", false, false},
                        {"Lab \u00e4\\Pan*", false, false},
                        {"missing\\*", false, false},
                        {"Lab \u00e4\\Panels", false, true},
                        {"Lab \u00e4\\Panels\\", false, true},
                        {"Lab \u00e4\\Lab.tsy\\x", false, false},
                        {"", false, false}}) {
    EXPECT_EQ(application.findsFile(c.path), c.file) << c.path;
    EXPECT_EQ(application.findsFolder(c.path), c.folder) << c.path;
  }
  const std::string tooLong(5000, 'x');
  EXPECT_FALSE(application.findsFile(tooLong) || application.findsFolder(tooLong));
}

TEST_F(PathsTest, PictureFromAFile) {
  EXPECT_EQ(application.loadPicture("Lab \u00e4\\Lab.tsy").file(), root / "Lab \u00e4" / "Lab.tsy");
  try {
    (void)application.loadPicture("Lab \u00e4\\None.bmp");
    ADD_FAILURE();
  } catch (const forms::Error& error) {
    EXPECT_EQ(error.number(), forms::errors::fileNotFound);
  }
}

}  // namespace
}  // namespace tests
