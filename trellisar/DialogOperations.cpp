#include "host/Numbers.h"
#include "trellisar/DeviceDialog.h"
#include "trellisar/DevicePropertiesDialog.h"
#include "trellisar/MainWindowOperations.h"
#include "trellisar/PreferencesDialog.h"

namespace trellisar {

std::int16_t MainWindowOperations::ShowAddReplaceDeviceDialog(
    host::DeviceDialogArguments& arguments) {
  note("ShowAddReplaceDeviceDialog " + arguments.strName);
  const std::string& category =
      arguments.strCategory12.empty() ? arguments.strCategory6 : arguments.strCategory12;
  const DevicePtr current = session_->data()->find(arguments.iDeviceID, DeviceData::Kind::device);
  DeviceDialog dialog(arguments.strTitle, session_->libraryManager->offered(category),
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

void MainWindowOperations::ShowPreferencesDialog() {
  note("ShowPreferencesDialog");
  PreferencesDialog(session_->preferences).run();
}

}  // namespace trellisar
