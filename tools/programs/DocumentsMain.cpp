#include <cstdio>
#include <exception>
#include <filesystem>
#include <utility>

#include "app/Commands.h"
#include "base/FileIO.h"
#include "tools/programs/Documents.h"

namespace {

namespace fs = std::filesystem;

/// Each in the place below the folder where a system keeps it.
void writeDocuments(const fs::path& folder) {
  const app::Commands commands;
  const std::pair<const char*, std::string> documents[] = {
      {"man/man1/orlena.1", tools::manPage(commands)},
      {"bash-completion/completions/orlena", tools::bashCompletion(commands)},
      {"zsh/vendor-completions/_orlena", tools::zshCompletion(commands)},
      {"fish/vendor_completions.d/orlena.fish", tools::fishCompletion(commands)},
  };
  for (const auto& [name, text] : documents) {
    const fs::path file = folder / name;
    fs::create_directories(file.parent_path());
    base::replaceFile(file, text);
  }
}

}  // namespace

/// Writes the man page and the completions of the shells to a folder.
int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "orlena_documents FOLDER\n");
    return 2;
  }
  try {
    writeDocuments(argv[1]);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
