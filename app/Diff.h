#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace app {

struct DiffOptions {
  std::filesystem::path before;
  std::filesystem::path after;
  bool asJson = false;
};

/// Prints in what two saved systems differ, in words or as JSON. The file "/dev/null" stands for no
/// system. Answers the exit status: `different` where they are not the same.
int diff(const DiffOptions& options);

/// The same for git, which hands over a path of the repository, and for both sides a file, its hash
/// and its mode; of a file that was renamed also where it is now; of one that is not merged the
/// path alone. The words stand below the path. To git every status but `ok` is a driver that
/// failed, so a file that can't be read is told there too.
int diffForGit(const std::vector<std::string>& arguments);

}  // namespace app
