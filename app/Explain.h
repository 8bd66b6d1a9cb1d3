#pragma once

#include <filesystem>
#include <optional>

namespace app {

struct ExplainOptions {
  std::filesystem::path systemFile;
  std::optional<std::filesystem::path> library;  // in the place of the shipped one
  bool asJson = false;
};

/// Prints a saved system, for reading or as the listing, with the answers that each part of it is
/// there for. Answers the exit status.
int explain(const ExplainOptions& options);

}  // namespace app
