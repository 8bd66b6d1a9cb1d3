#pragma once

#include <CLI/CLI.hpp>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace app {

/// A number or a name, and what it means.
struct Meaning {
  std::string word;
  std::string meaning;
};

/// A command of the program: what it takes, what it ends with, and what it does.
struct Command {
  CLI::App* parsed;
  std::function<int()> run;
  std::vector<Meaning> exitStatuses;
};

/// The one table of the program's commands and their options: what the parser reads, the help
/// tells, and the man page and the completions of the shells are made of.
struct Commands {
  Commands();

  CLI::App program;
  std::vector<Command> all;
  /// What the main window opens where no command is given.
  std::optional<std::filesystem::path> file;
};

/// The environment variables that the program looks at.
const std::vector<Meaning>& environmentVariables();

/// Whether an option stands alone, without a value.
bool isFlag(const CLI::Option& option);

/// What an option, or a positional argument, asks for: "FOLDER", "FILE.tsy".
std::string valueName(const CLI::Option& option);

}  // namespace app
