#pragma once

#include <filesystem>
#include <utility>
#include <vector>

#include "trellisar/document/DocumentData.h"

/// Systems that stand where one is about to be saved.
namespace trellisar {

/// A system file of the folder that is not the document's own; empty when there is none.
std::filesystem::path foreignSystemIn(const std::filesystem::path& folder,
                                      const std::filesystem::path& ownFile);

/// The compiled program and the panel projects of a system that is about to be replaced.
class Belongings {
 public:
  Belongings() = default;
  explicit Belongings(std::vector<std::filesystem::path> files) : files_(std::move(files)) {}
  /// As far as they are there.
  void remove() const;

 private:
  std::vector<std::filesystem::path> files_;
};

/// Those of the system in the file; none when it is not there, or lies where the document does.
Belongings belongingsOfOther(const DocumentData& document, const std::filesystem::path& file);

}  // namespace trellisar
