#pragma once

#include <filesystem>

namespace app {

struct ShowOptions {
  std::filesystem::path systemFile;
  bool asJson = false;
};

/// Prints a saved system, for reading or as the listing. Answers the exit status.
int show(const ShowOptions& options);

}  // namespace app
