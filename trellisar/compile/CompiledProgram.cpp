#include "trellisar/compile/CompiledProgram.h"

#include <optional>
#include <system_error>
#include <utility>

#include "base/FileIO.h"
#include "forms/Paths.h"
#include "host/Error.h"
#include "program/ProgramText.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/compile/ProgramValues.h"
#include "trellisar/document/ProgramFile.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/library/HostErrors.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

constexpr const char* programExtension = ".tsp";

/// Puts a file back as it was unless it is told to leave it.
class FileKeeper {
 public:
  explicit FileKeeper(fs::path file) : file_(std::move(file)) {
    std::error_code error;
    if (fs::exists(file_, error)) old_ = base::readFile(file_);
  }
  ~FileKeeper() {
    if (!isKept_) return;
    try {
      if (old_) {
        base::replaceFile(file_, *old_);
      } else {
        fs::remove(file_);
      }
    } catch (const std::exception&) {
      // The error that led here is the one to be told.
    }
  }
  FileKeeper(const FileKeeper&) = delete;
  FileKeeper& operator=(const FileKeeper&) = delete;

  void leave() { isKept_ = false; }

 private:
  fs::path file_;
  std::optional<std::string> old_;
  bool isKept_ = true;
};

}  // namespace

std::string compileProgram(const DocumentData& document) {
  return program::programText(compiledValues(document));
}

void storeCompiledProgram(DocumentData& document, const std::string& program) {
  return raisingHostErrors([&] {
    if (document.ownFile.empty()) {
      throw host::Error(host::errFile,
                        "The system has no file yet. Save it, then build its program.");
    }
    const std::string name = document.ownFile.stem().string() + programExtension;
    const fs::path file = document.ownFile.parent_path() / name;
    FileKeeper keeper(file);
    base::replaceFile(file, program);
    const std::string oldName = std::exchange(document.compiledProgram, name);
    const bool wasCurrent = std::exchange(document.programIsCurrent, true);
    try {
      saveSystemFile(document, forms::fromMachinePath(document.ownFile));
    } catch (const host::Error&) {
      document.compiledProgram = oldName;
      document.programIsCurrent = wasCurrent;
      throw;
    }
    keeper.leave();
    document.isModified = false;
  });
}

std::string storedProgram(const DocumentData& document) {
  return raisingHostErrors([&] {
    const fs::path file = storedProgramFile(document);
    if (file.empty()) {
      throw host::Error(host::errFile,
                        "The system \"" + document.name +
                            "\" has no compiled program yet. Build the system first.");
    }
    std::string program = base::readFile(file);
    program::requireWholeProgram(program, file.string());
    return program;
  });
}

bool isProgramCurrent(const DocumentData& document) {
  if (!document.programIsCurrent || document.compiledProgram.empty()) return false;
  if (!programErrors(document).empty()) return false;
  try {
    return base::readFile(storedProgramFile(document)) == compileProgram(document);
  } catch (const base::FileError&) {
    return false;  // building it again tells what is wrong
  } catch (const host::Error&) {
    return false;  // the same for the project of a panel
  }
}

}  // namespace trellisar
