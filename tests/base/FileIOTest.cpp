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
  folder.write("file", "");
  const auto writing = [](const fs::path& file) {
    return reasonOf([&] { base::replaceFile(file, "x"); });
  };
  const auto reading = [](const fs::path& file) { return reasonOf([&] { base::readFile(file); }); };
  const std::string inside = "\"" + folder.path().string();
  const std::string other = "Choose another folder.";
  EXPECT_EQ(writing("/proc/x.tsa"),
            "Can't write \"/proc/x.tsa\": the place can't hold files. " + other);
  EXPECT_EQ(writing(folder / "none/x.tsa"),
            "Can't write " + inside +
                "/none/x.tsa\": its folder does not exist. Make it, or choose another one.");
  EXPECT_EQ(
      writing(folder / "file/x.tsa"),
      "Can't write " + inside + "/file/x.tsa\": a file stands where a folder should be. " + other);
  EXPECT_EQ(reading(folder / "none"), "Can't read " + inside + "/none\": it does not exist.");
  EXPECT_EQ(reading(folder.path()), "Can't read " + inside + "\": it is a folder and no file.");
  EXPECT_EQ(reasonOf([] { base::MadeFolders("/proc/a/b"); }),
            "Can't make the folder \"/proc/a/b\": the place can't hold files. " + other);
}

}  // namespace
}  // namespace tests
