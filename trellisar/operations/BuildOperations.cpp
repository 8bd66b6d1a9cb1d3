#include "trellisar/dialogs/CompileDialog.h"
#include "trellisar/operations/MainWindowOperations.h"

namespace trellisar {

bool MainWindowOperations::ShowCreateProgramDialog(bool& bCancelled) {
  note("ShowCreateProgramDialog");
  CompileDialog dialog(session_->data(), guide_);
  const bool isStored = dialog.run();
  bCancelled = dialog.isCancelled();
  return isStored;
}

// The transfer asks its questions itself, so that what the next two say in advance is not needed.

void MainWindowOperations::SetupSystemManager(std::int32_t&, const host::SystemManagerOptions&) {
  note("SetupSystemManager");
}

void MainWindowOperations::SetQueryResponse(std::int16_t iResponse) {
  note("SetQueryResponse " + std::to_string(iResponse));
}

}  // namespace trellisar
