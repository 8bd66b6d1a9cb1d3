#pragma once

#include <filesystem>

namespace app {

struct ReportsOptions {
  std::filesystem::path systemFile;
  std::filesystem::path out = ".";
  bool replace = false;
};

/// Writes the bill of materials and the connection sheet of a saved system into a folder, and
/// prints the files' paths. What stands there is replaced with `replace`, or when it is an earlier
/// report of the same system file. Answers the exit status.
int writeReports(const ReportsOptions& options);

}  // namespace app
