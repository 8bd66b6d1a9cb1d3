#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/Json.h"

namespace tests {

/// What a fuzzer decides, one byte after the other; 0 behind the last.
class Decisions {
 public:
  explicit Decisions(std::string_view bytes) : bytes_(bytes) {}

  bool isEmpty() const { return next_ >= bytes_.size(); }
  /// Below `count`, and 0 for none.
  std::size_t below(std::size_t count);

 private:
  std::size_t byte();

  std::string_view bytes_;
  std::size_t next_ = 0;
};

/// Changes one value of a file, wherever it stands, in a way that leaves its text JSON: takes it
/// away, gives it another type, doubles it, makes it huge, or empties it.
void changeStructure(base::Json& json, Decisions& decisions);

/// An archive as an array of `{"name", "content"}`; the content of a system is JSON, that of
/// another file a text.
base::Json archiveStructure(const std::filesystem::path& archive);
/// The zip file of such an array. An entry that is none becomes a folder.
std::string archiveBytes(const base::Json& entries);

}  // namespace tests
