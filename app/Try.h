#pragma once

#include <filesystem>
#include <optional>

namespace app {

struct TryOptions {
  std::filesystem::path systemFile;
  std::optional<std::filesystem::path> script;  // "-" is standard input
  bool asJson = false;
};

/// Tries a saved system in virtual time: does what a script says and prints what happens. Answers
/// the exit status.
int tryRoom(const TryOptions& options);

}  // namespace app
