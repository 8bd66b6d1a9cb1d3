#include "base/FileIO.h"
#include "base/MadeFolders.h"

#include "base/Error.h"
#include "tests/support/Files.h"

#include <gtest/gtest.h>

namespace tests {
namespace {

namespace fs = std::filesystem;

template <typename Act>
std::string reasonOf(Act&& act) {
  try {
    act();
  } catch (const base::FileError& error) {
    return error.what();
  }
  return {};
}

TEST(Files, ReasonsSayWhatStandsInTheWayAndWhatToDo) {
  const TemporaryFolder folder;
  writeFile(folder.path() / "file", "");
  const auto writing = [](const fs::path& file) {
    return reasonOf([&] { base::replaceFile(file, "x"); });
  };
  const auto reading = [](const fs::path& file) { return reasonOf([&] { base::readFile(file); }); };
  const std::string inside = "\"" + folder.path().string() + "/";
  EXPECT_EQ(writing("/proc/x.tsa"),
            "Can't write \"/proc/x.tsa\": the place can't hold files. Choose another folder.");
  EXPECT_EQ(writing(folder.path() / "none/x.tsa"),
            "Can't write " + inside +
                "none/x.tsa\": its folder does not exist. Make it, or choose another one.");
  EXPECT_EQ(writing(folder.path() / "file/x.tsa"),
            "Can't write " + inside +
                "file/x.tsa\": a file stands where a folder should be. Choose another folder.");
  EXPECT_EQ(reading(folder.path() / "none"), "Can't read " + inside + "none\": it does not exist.");
  EXPECT_EQ(reading(folder.path()),
            "Can't read \"" + folder.path().string() + "\": it is a folder and no file.");
  EXPECT_EQ(reasonOf([] { base::MadeFolders("/proc/a/b"); }),
            "Can't make the folder \"/proc/a/b\": the place can't hold files. Choose another "
            "folder.");
}

}  // namespace
}  // namespace tests
