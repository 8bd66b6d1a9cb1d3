#include "forms/Paths.h"
#include "host/Numbers.h"
#include "trellisar/communication/AddressBookDialog.h"
#include "trellisar/dialogs/DeviceDialog.h"
#include "trellisar/dialogs/DevicePropertiesDialog.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/dialogs/PreferencesDialog.h"
#include "trellisar/dialogs/RealTimeDialog.h"
#include "trellisar/dialogs/ReportsDialog.h"
#include "trellisar/operations/MainWindowOperations.h"

namespace trellisar {

std::int16_t MainWindowOperations::ShowAddReplaceDeviceDialog(
    host::DeviceDialogArguments& arguments) {
  note("ShowAddReplaceDeviceDialog " + arguments.strName);
  const std::string& category =
      arguments.strCategory12.empty() ? arguments.strCategory6 : arguments.strCategory12;
  const DevicePtr current = session_->data()->find(arguments.iDeviceID, DeviceData::Kind::device);
  DeviceDialog dialog(arguments.strTitle, *session_->library,
                      session_->libraryManager->offered(category),
                      current ? current->definition : nullptr);
  if (dialog.run()) return chooseDevice(arguments, dialog.chosen());
  return arguments.iDeviceID == 0 ? host::deviceDialogNone : host::deviceDialogUnchanged;
}

void MainWindowOperations::ShowControlledDeviceProperties(std::int16_t iDeviceID,
                                                          const std::vector<std::string>& colTabs) {
  note("ShowControlledDeviceProperties " + std::to_string(iDeviceID));
  const DevicePtr device = session_->data()->find(iDeviceID);
  if (!device || colTabs.empty()) return;
  DevicePropertiesDialog(session_->data(), device, colTabs).run();
}

void MainWindowOperations::ShowAddressBook(std::int32_t) {
  note("ShowAddressBook");
  AddressBookDialog(session_->preferences, [this] {
    const auto communication = session_->communication.lock();
    if (communication) communication->DisplayHelp.raise(host::helpFinishTab);
  }).run();
}

void MainWindowOperations::ShowPreferencesDialog() {
  note("ShowPreferencesDialog");
  PreferencesDialog(session_->preferences).run();
}

void MainWindowOperations::ShowReportsDialog(const std::string& strReports) {
  note("ShowReportsDialog " + strReports);
  const DocumentData& document = *session_->data();
  const ReportOptions options{forms::toMachinePath(session_->libraryManager->get_PicturesFolder()),
                              today()};
  std::vector<Report> reports = reportsNamed(document, strReports, options);
  if (reports.empty()) return;
  ReportsDialog(std::move(reports), document.folder, session_->printer).run();
}

void MainWindowOperations::ShowRealTimeDialog(std::int16_t& iDeviceID) {
  note("ShowRealTimeDialog " + std::to_string(iDeviceID));
  const DevicePtr device = session_->data()->find(iDeviceID, DeviceData::Kind::device);
  if (device && device->realTimePage == host::progIDRealTimeAudio) {
    RealTimeDialog(*device).run();
  } else {
    showFailure(device
                    ? "The device \"" + device->name + "\" has no real-time settings."
                    : "The device whose real-time settings were asked for is not in the system.");
  }
}

}  // namespace trellisar
