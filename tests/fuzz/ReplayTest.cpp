#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "tests/fuzz/Targets.h"
#include "tests/support/Files.h"

namespace {

namespace fs = std::filesystem;

/// Each kept case made its target fail once, or leads it far in.
TEST(KeptCases, areTakenOrRefusedAndNothingElse) {
  for (const auto& [name, target] : tests::fuzzTargets()) {
    const fs::path cases = fs::path(ORLENA_SOURCE_FOLDER) / "tests/fuzz/cases" / name;
    ASSERT_TRUE(fs::is_directory(cases)) << cases;
    for (const auto& entry : fs::directory_iterator(cases)) {
      EXPECT_NO_THROW(target(tests::fileText(entry.path()))) << entry.path();
    }
  }
}

/// A share of what tools/fuzz tries for as long as it is let; the same one in every run.
TEST(ChangedStructure, isTakenOrRefusedAndNothingElse) {
  constexpr int kindsOfFile = 6;
  constexpr int changesOfEach = 200;
  const tests::FuzzTarget target = tests::fuzzTargets().at("structure");
  for (int kind = 0; kind < kindsOfFile; ++kind) {
    std::mt19937 random(1);
    for (int i = 0; i < changesOfEach; ++i) {
      std::string bytes(1, static_cast<char>(kind));
      while (bytes.size() < 5) bytes += static_cast<char>(random() % 256);
      EXPECT_NO_THROW(target(bytes)) << "change " << i << " of kind " << kind;
    }
  }
}

}  // namespace
