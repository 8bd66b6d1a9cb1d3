#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "tests/fuzz/Targets.h"

namespace {

namespace fs = std::filesystem;

/// Each kept case made its target fail once, or leads it far in.
TEST(KeptCases, areTakenOrRefusedAndNothingElse) {
  for (const auto& [name, target] : tests::fuzzTargets()) {
    const fs::path cases = fs::path(ORLENA_SOURCE_FOLDER) / "tests/fuzz/cases" / name;
    ASSERT_TRUE(fs::is_directory(cases)) << cases;
    for (const auto& entry : fs::directory_iterator(cases)) {
      std::stringstream bytes;
      bytes << std::ifstream(entry.path(), std::ios::binary).rdbuf();
      EXPECT_NO_THROW(target(bytes.str())) << entry.path();
    }
  }
}

}  // namespace
