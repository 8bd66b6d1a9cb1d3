#pragma once

#include <filesystem>
#include <optional>

namespace app {

struct SchemaOptions {
  std::optional<std::filesystem::path> library;  // in the place of the shipped one
};

/// Prints the JSON Schema of an answers file. Answers the exit status.
int printSchema(const SchemaOptions& options);

}  // namespace app
