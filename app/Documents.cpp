#include "app/Documents.h"

#include "app/Commands.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Error.h"
#include "base/FileIO.h"

namespace app {

namespace fs = std::filesystem;

int writeDocuments(const DocumentsOptions& options) {
  const Commands commands;
  const std::pair<const char*, std::string> documents[] = {
      {"man/man1/orlena.1", manPage(commands)},
      {"bash-completion/completions/orlena", bashCompletion(commands)},
      {"zsh/site-functions/_orlena", zshCompletion(commands)},
  };
  try {
    for (const auto& [name, text] : documents) {
      const fs::path file = options.out / name;
      fs::create_directories(file.parent_path());
      base::replaceFile(file, text);
      print(file.string() + "\n");
    }
    return exitStatus::ok;
  } catch (const base::Error& error) {
    reportLine(error.what());
    return exitStatus::refused;
  }
}

}  // namespace app
