#pragma once

#include <filesystem>

namespace app {

/// What `orlena rooms` is told.
struct RoomsOptions {
  std::filesystem::path table;
  std::filesystem::path pattern;    // the answers that all rooms have where the table says nothing
  std::filesystem::path out = ".";  // the folder of the answers files
  bool replace = false;             // what stands there and says something else may be replaced
};

/// Writes an answers file for each room of a table and prints the files' paths. Answers the exit
/// status; unless it is 0, nothing is written.
int writeRooms(const RoomsOptions& options);

}  // namespace app
