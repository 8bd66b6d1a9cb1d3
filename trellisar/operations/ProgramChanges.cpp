#include "host/Error.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/dialogs/ComparisonDialog.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/operations/MainWindowOperations.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

/// What a save would change in a system whose program is built; nothing where none is.
Differences changesOfBuiltProgram(const DocumentData& document, const fs::path& file) {
  if (standingAt(document, file) != Standing::own) return {};
  try {
    const DocumentPtr saved = readSystemFile(file, nullptr);
    return isProgramCurrent(*saved) ? compare(*saved, document) : Differences();
  } catch (const host::Error&) {
    return {};  // in a damaged file there is nothing to lose
  }
}

}  // namespace

bool MainWindowOperations::mayReplaceProgram(const fs::path& file) const {
  // Where nobody is asked about another system there is nobody to read this either.
  if (session_->replacing != Replacing::ask || !session_->preferences.showsChanges()) return true;
  const DocumentData& document = *session_->data();
  const Differences changes = changesOfBuiltProgram(document, file);
  return changes.empty() || confirmChanges(document.name, changes);
}

}  // namespace trellisar
