#pragma once

#include <filesystem>
#include <optional>

namespace app {

struct AnswersOptions {
  std::filesystem::path systemFile;
  std::optional<std::filesystem::path> library;  // in the place of the shipped one
};

/// Prints the answers file that builds the system anew, and tells what none can build. Answers the
/// exit status.
int printAnswers(const AnswersOptions& options);

}  // namespace app
