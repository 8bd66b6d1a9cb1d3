#pragma once

#include <functional>
#include <string>

#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/TextBox.h"
#include "trellisar/communication/CommunicationDialog.h"
#include "trellisar/settings/Preferences.h"

namespace trellisar {

/// The receivers that a user sends systems to, and which one is in use. What stands in the two
/// boxes goes into the list through Add and Change; OK keeps the list.
class AddressBookDialog : public CommunicationDialog {
 public:
  /// `help` shows the help.
  AddressBookDialog(Preferences& preferences, std::function<void()> help);

  forms::Label lblReceivers{*this, "lblReceivers", "R&eceivers:"};
  forms::ListView lvwReceivers{*this, "lvwReceivers"};
  forms::Label lblInUse{*this, "lblInUse", textOfEmptyBook};
  forms::Label lblName{*this, "lblName", "Na&me:"};
  forms::TextBox txtName{*this, "txtName"};
  forms::Label lblAddress{*this, "lblAddress", "&Address:"};
  forms::TextBox txtAddress{*this, "txtAddress"};
  forms::CommandButton cmdAdd{*this, "cmdAdd", "A&dd"};
  forms::CommandButton cmdChange{*this, "cmdChange", "Chan&ge"};
  forms::CommandButton cmdRemove{*this, "cmdRemove", "&Remove"};
  forms::CommandButton cmdUse{*this, "cmdUse", "&Use"};

 protected:
  bool accept() override;

 private:
  static constexpr const char* textOfEmptyBook =
      "There is no receiver in the list yet. Type a name and an address, and click Add. Until then "
      "systems are sent to the receiver of the IP information, or to the usual address.";

  void show(std::int32_t row);
  void rowSelected();
  /// Null when no row is selected.
  NamedAddress* selected();
  NamedAddress typed() const;
  /// Whether the boxes can go into the list, in the place of `replaced` (null: as a new row). False
  /// when the user was told that they can't.
  bool check(const NamedAddress* replaced);
  bool add();
  void change();
  void remove();
  void use();

  Preferences& preferences_;
  AddressBook book_;
};

}  // namespace trellisar
