#include "host/Error.h"
#include "trellisar/CompileDialog.h"
#include "trellisar/MainWindowOperations.h"

namespace trellisar {

bool MainWindowOperations::ShowCreateProgramDialog(bool& bCancelled) {
  note("ShowCreateProgramDialog");
  CompileDialog dialog(session_->data(), guide_);
  const bool isStored = dialog.run();
  bCancelled = dialog.isCancelled();
  return isStored;
}

void MainWindowOperations::SetupSystemManager(std::int32_t&,
                                              const host::SystemManagerOptions& options) {
  note("SetupSystemManager");
  systemManager_ = options;
}

void MainWindowOperations::SetQueryResponse(std::int16_t iResponse) {
  note("SetQueryResponse " + std::to_string(iResponse));
  queryResponses_.push_back(iResponse);
}

}  // namespace trellisar
