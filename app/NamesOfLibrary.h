#pragma once

#include <filesystem>

namespace app {

struct LibraryOptions {
  std::filesystem::path folder;
  bool forCopies = false;  // the list of names is to hold in other places too
};

/// Checks a device library and writes its list of names. Answers the exit status.
int listNames(const LibraryOptions& options);

}  // namespace app
