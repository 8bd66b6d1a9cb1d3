#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "trellisar/Json.h"

namespace app {

/// The file name that stands for standard input.
inline constexpr const char* standardInput = "-";

/// What an answers file says about a room, in the form that it must have.
class Answers {
 public:
  /// Checks the form. Raises RunEnded with status 2, which names the key's path and what is allowed
  /// there.
  explicit Answers(trellisar::Json json);

  /// Reads and checks a file, or standard input. Raises RunEnded as above, or when the file can't
  /// be read or is no JSON.
  static Answers fromFile(const std::filesystem::path& file);

  /// The value at a path such as "display.relay.on_delay"; null when it was left out.
  const trellisar::Json* find(std::string_view path) const;

  /// The parent folder of the system in the place of the file's own.
  void setFolder(const std::filesystem::path& folder);

 private:
  trellisar::Json json_;
};

}  // namespace app
