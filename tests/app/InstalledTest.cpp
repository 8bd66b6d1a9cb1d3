#include "tests/app/Program.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// The program in a prefix of its own, with nothing but what a test puts there.
class InstalledOrlena : public ProgramTest {
 protected:
  void SetUp() override {
    fs::create_directories(folder / "prefix/bin");
    fs::copy_file(ORLENA_PROGRAM, folder / "prefix/bin/orlena");
    folder.write("hall.json", R"({"name": "Hall"})");
  }

  /// Data with a library that can't be opened: the error tells which one was taken.
  void givenData(const std::string& where, const std::string& mark) {
    folder.write(
        where + "/library/index.json",
        R"({"format": "trellisar-device-library", "version": 1, "files": [")" + mark + R"("]})");
  }

  Outcome run(const std::string& arguments, const std::string& environment = {}) {
    const std::string libraries = fs::path(ORLENA_PROGRAM).parent_path().string();
    return program.shell("LD_LIBRARY_PATH='" + libraries + "' " + environment +
                         " prefix/bin/orlena " + arguments);
  }
  std::string errorsOf(const std::string& environment = {}) {
    return run("build hall.json", environment).errors;
  }
};

TEST_F(InstalledOrlena, TakesTheDataThatIsNamedThenTheOneBesideThenTheInstalledOne) {
  expectHas(errorsOf(), "prefix/share/orlena");
  givenData("prefix/share/orlena", "installed.json");
  expectHas(errorsOf(), "installed.json");
  givenData("prefix/bin/data", "beside.json");
  expectHas(errorsOf(), "beside.json");
  givenData("named", "named.json");
  expectHas(errorsOf("ORLENA_DATA=named"), "named.json");
  expectHas(errorsOf("ORLENA_DATA=missing"), "ORLENA_DATA names \"missing\"");
}

TEST_F(InstalledOrlena, WithoutItsWindowsNamesThePackageThatHasThem) {
  expectRefused(run("wizard", "QT_QPA_PLATFORM=offscreen"), 2, "\"orlena-desktop\"");
}

TEST_F(InstalledOrlena, WithBrokenWindowsSaysWhatIsWrongWithThem) {
  folder.write("prefix/lib/orlena/parts/liborlena-desktop.so", "no library");
  expectRefused(run("wizard", "QT_QPA_PLATFORM=offscreen"), 1,
                "lib/orlena/parts/liborlena-desktop.so");
}

}  // namespace
}  // namespace app
