#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/Fault.h"
#include "base/JsonText.h"

namespace answers {

/// What an answers file says about a room, in the form that it must have.
class Answers {
 public:
  /// How long a file may be.
  static constexpr std::size_t mostBytes = 1U << 20U;

  /// Checks the form of a file's text. Raises RunEnded, as wrong input, with all that is wrong with
  /// it, from the first line to the last.
  explicit Answers(std::string text);

  /// The value at a path such as "display.relay.on_delay", null itself where the file says null;
  /// nothing when it was left out, or stands in what is null.
  const base::Json* find(std::string_view path) const;

  /// The parent folder of the system in the place of the file's own.
  void setFolder(const std::filesystem::path& folder);

  /// The fault with the line of its path.
  base::Fault placed(base::Fault fault) const;

 private:
  base::JsonText file_;
};

}  // namespace answers
