#pragma once

#include <filesystem>
#include <optional>
#include <vector>

#include "answers/Delivery.h"

namespace app {

/// What `orlena build` is told besides the answers.
struct BuildOptions {
  std::vector<std::filesystem::path> answersFiles;
  std::optional<std::filesystem::path>
      out;  // the parent folder of the systems, over that of the answers
  std::optional<std::filesystem::path> library;  // in the place of the shipped one
  bool replace = false;                          // an existing system or archive may be replaced
  std::vector<std::filesystem::path> onto;       // the systems that are answered; none: new ones
  answers::Delivery delivery;                    // of each room
  int jobs = 1;                                  // rooms that are built side by side
};

/// Builds a room for each answers file and prints the paths of the saved systems in the files'
/// order. A room that fails does not stop the others. Answers the highest exit status of all.
int build(const BuildOptions& options);

}  // namespace app
