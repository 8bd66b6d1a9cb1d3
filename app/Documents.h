#pragma once

#include <filesystem>
#include <string>

namespace app {

struct Commands;

struct DocumentsOptions {
  std::filesystem::path out;
};

/// Writes the man page and the completions of bash and zsh to a folder, each in the place below it
/// where a system keeps them. Answers the exit status.
int writeDocuments(const DocumentsOptions& options);

/// What they are made of: the table of the commands.
std::string manPage(const Commands& commands);
std::string bashCompletion(const Commands& commands);
std::string zshCompletion(const Commands& commands);

}  // namespace app
