#include "trellisar/communication/CommunicationDialog.h"
#include "trellisar/dialogs/Messages.h"

#include <utility>

#include "host/Numbers.h"

namespace trellisar {

CommunicationDialog::CommunicationDialog(std::string name, const std::string& caption,
                                         std::function<void()> help)
    : Dialog(std::move(name), caption, host::helpFinishTab), help_(std::move(help)) {}

bool CommunicationDialog::refuse(forms::TextBox& box, const std::string& message) {
  showFailure(message);
  box.setFocus();
  box.selectAll();
  return false;
}

}  // namespace trellisar
