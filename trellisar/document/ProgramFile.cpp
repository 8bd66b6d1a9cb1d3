#include "trellisar/document/ProgramFile.h"

#include <system_error>

#include "base/FileIO.h"
#include "forms/Paths.h"

namespace trellisar {

namespace fs = std::filesystem;

fs::path storedProgramFile(const DocumentData& document) {
  if (document.compiledProgram.empty()) return {};
  return forms::toMachinePath(document.folder) / document.compiledProgram;
}

void forgetMissingProgram(DocumentData& document, const fs::path& folder) {
  std::error_code error;
  if (document.compiledProgram.empty() || fs::exists(folder / document.compiledProgram, error)) {
    return;
  }
  document.compiledProgram.clear();
  document.programIsCurrent = false;
}

void leaveProgramBehind(DocumentData& document, const fs::path& folder) {
  if (!base::isSameFile(folder, document.ownFile.parent_path())) document.compiledProgram.clear();
  forgetMissingProgram(document, folder);
  document.programIsCurrent = document.programIsCurrent && !document.compiledProgram.empty();
}

}  // namespace trellisar
