#include "host/Error.h"
#include "trellisar/MainWindowOperations.h"

namespace trellisar {

bool MainWindowOperations::ShowCreateProgramDialog(bool&) {
  throw host::NotAvailable("Compiling a program");
}

void MainWindowOperations::Export(std::int32_t&) { throw host::NotAvailable("The export"); }

void MainWindowOperations::SetupSystemManager(std::int32_t&,
                                              const host::SystemManagerOptions& options) {
  systemManager_ = options;
}

void MainWindowOperations::SetQueryResponse(std::int16_t iResponse) {
  queryResponses_.push_back(iResponse);
}

std::shared_ptr<host::UIManager> MainWindowOperations::GetUIMgr() {
  throw host::NotAvailable("The manager of panel projects");
}

bool MainWindowOperations::CreateTouchpanels(std::shared_ptr<host::Touchpanel>&) {
  throw host::NotAvailable("Making panel projects");
}

void MainWindowOperations::ShowReportsDialog(const std::string&) {
  throw host::NotAvailable("The dialog of the reports");
}

void MainWindowOperations::ShowRealTimeDialog(std::int16_t&) {
  throw host::NotAvailable("The real-time dialog");
}

void MainWindowOperations::ShowAddressBook(std::int32_t) {
  throw host::NotAvailable("The address book");
}

}  // namespace trellisar
