#pragma once

#include <filesystem>
#include <vector>

namespace app {

struct CheckOptions {
  std::vector<std::filesystem::path> systemFiles;
  int depth = 4;  // acts in a row
  bool asJson = false;
};

/// The most acts in a row; each more takes some twenty times as long.
inline constexpr int deepestCheck = 8;

/// Looks for faults in saved systems: errors of the program, what earlier answers left behind, and
/// what a person's acts bring about that must not be. Answers the exit status.
int check(const CheckOptions& options);

}  // namespace app
