#include <gtest/gtest.h>

#include "tests/app/Program.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// The program in a prefix of its own, with nothing but what a test puts there.
class InstalledOrlena : public testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(folder_ / "prefix/bin");
    fs::copy_file(ORLENA_PROGRAM, folder_ / "prefix/bin/orlena");
    folder_.write("hall.json", R"({"name": "Hall"})");
  }

  /// Data with a library that can't be opened: the error tells which one was taken.
  void givenData(const std::string& where, const std::string& mark) const {
    folder_.write(
        where + "/library/index.json",
        R"({"format": "trellisar-device-library", "version": 1, "files": [")" + mark + R"("]})");
  }

  Outcome run(const std::string& arguments, const std::string& environment = {}) {
    const std::string libraries = fs::path(ORLENA_PROGRAM).parent_path().string();
    return program_.shell("LD_LIBRARY_PATH='" + libraries + "' " + environment +
                          " prefix/bin/orlena " + arguments);
  }
  std::string errorsOf(const std::string& environment = {}) {
    return run("build hall.json", environment).errors;
  }

  const TemporaryFolder folder_;
  Program program_{folder_};
};

TEST_F(InstalledOrlena, TakesTheDataThatIsNamedThenTheOneBesideThenTheInstalledOne) {
  EXPECT_NE(errorsOf().find("prefix/share/orlena"), std::string::npos) << errorsOf();
  givenData("prefix/share/orlena", "installed.json");
  EXPECT_NE(errorsOf().find("installed.json"), std::string::npos) << errorsOf();
  givenData("prefix/bin/data", "beside.json");
  EXPECT_NE(errorsOf().find("beside.json"), std::string::npos) << errorsOf();
  givenData("named", "named.json");
  EXPECT_NE(errorsOf("ORLENA_DATA=named").find("named.json"), std::string::npos);
  const std::string missing = errorsOf("ORLENA_DATA=missing");
  EXPECT_NE(missing.find("ORLENA_DATA names \"missing\""), std::string::npos) << missing;
}

TEST_F(InstalledOrlena, WithoutItsWindowsNamesThePackageThatHasThem) {
  const Outcome outcome = run("wizard", "QT_QPA_PLATFORM=offscreen");
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.errors.find("\"orlena-desktop\""), std::string::npos) << outcome.errors;
}

TEST_F(InstalledOrlena, WithBrokenWindowsSaysWhatIsWrongWithThem) {
  folder_.write("prefix/lib/orlena/parts/liborlena-desktop.so", "no library");
  const Outcome outcome = run("wizard", "QT_QPA_PLATFORM=offscreen");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("lib/orlena/parts/liborlena-desktop.so"), std::string::npos)
      << outcome.errors;
}

}  // namespace
}  // namespace app
