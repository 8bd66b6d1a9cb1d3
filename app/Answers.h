#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "app/Fault.h"
#include "app/JsonText.h"

namespace app {

/// The file name that stands for standard input.
inline constexpr const char* standardInput = "-";

/// What an answers file says about a room, in the form that it must have.
class Answers {
 public:
  /// Checks the form of a file's text. Raises RunEnded with status 2 and all that is wrong with it,
  /// from the first line to the last.
  explicit Answers(std::string text);

  /// Reads and checks a file, or standard input. Raises RunEnded as above, or when it can't be
  /// read.
  static Answers fromFile(const std::filesystem::path& file);

  /// The value at a path such as "display.relay.on_delay"; null when it was left out, or holds
  /// null, which on a new system is the same.
  const base::Json* find(std::string_view path) const;

  /// The parent folder of the system in the place of the file's own.
  void setFolder(const std::filesystem::path& folder);

  /// The fault with the line of its path.
  Fault placed(Fault fault) const;

 private:
  JsonText file_;
};

}  // namespace app
