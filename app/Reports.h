#pragma once

#include <filesystem>

namespace app {

struct ReportsOptions {
  std::filesystem::path systemFile;
  std::filesystem::path out = ".";
};

/// Writes the bill of materials and the connection sheet of a saved system into a folder, and
/// prints the files' paths. Answers the exit status.
int writeReports(const ReportsOptions& options);

}  // namespace app
