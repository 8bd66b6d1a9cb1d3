#pragma once

#include <functional>
#include <string>

#include "forms/Label.h"
#include "forms/TextBox.h"
#include "trellisar/communication/CommunicationDialog.h"
#include "trellisar/settings/Preferences.h"

namespace trellisar {

/// How the receiver stands in its network. The host keeps it and does not change the receiver.
class IPSettingsDialog : public CommunicationDialog {
 public:
  /// `help` shows the help.
  IPSettingsDialog(Preferences& preferences, std::function<void()> help);

  forms::Label lblAddress{*this, "lblAddress", "&IP address:"};
  forms::TextBox txtAddress{*this, "txtAddress"};
  forms::Label lblMask{*this, "lblMask", "&Subnet mask:"};
  forms::TextBox txtMask{*this, "txtMask"};
  forms::Label lblGateway{*this, "lblGateway", "&Gateway:"};
  forms::TextBox txtGateway{*this, "txtGateway"};
  forms::Label lblHostName{*this, "lblHostName", "H&ost name:"};
  forms::TextBox txtHostName{*this, "txtHostName"};
  forms::Label lblMeaning{*this, "lblMeaning",
                          "Enter what is set on the receiver. A system is sent to this address, or "
                          "else to this name, while the address book of the communication settings "
                          "is empty."};

 protected:
  bool accept() override;

 private:
  Preferences& preferences_;
};

}  // namespace trellisar
