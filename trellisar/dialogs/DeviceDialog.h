#pragma once

#include <string>
#include <vector>

#include "forms/DropDownList.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/TextBox.h"
#include "trellisar/dialogs/Dialog.h"
#include "trellisar/library/DeviceLibrary.h"

namespace trellisar {

/// Lets a user choose a device of the library, whose list is narrowed by typed words and by a maker
/// and sorted by any of its columns.
class DeviceDialog : public Dialog {
 public:
  /// `offered` is of the library, in its order, which outlives the dialog. `current` is the device
  /// that is in the system, which is selected at first; nothing: none is.
  DeviceDialog(const std::string& title, const DeviceLibrary& library,
               std::vector<const ListedDefinition*> offered, const DefinitionPtr& current);

  /// The selected device; nothing when none is. Raises what DeviceLibrary raises.
  DefinitionPtr chosen() const;

  forms::Label lblFind{*this, "lblFind", "&Find:"};
  forms::TextBox txtFind{*this, "txtFind"};
  forms::Label lblMaker{*this, "lblMaker", "&Maker:"};
  forms::DropDownList cboMaker{*this, "cboMaker"};
  forms::Label lblSort{*this, "lblSort", "&Sort by:"};
  forms::DropDownList cboSort{*this, "cboSort"};
  forms::Label lblDevices{*this, "lblDevices", "&Device:"};
  forms::ListView lvwDevices{*this, "lvwDevices"};
  forms::Label lblDescription{*this, "lblDescription"};

 private:
  void connect();
  void fillMakers();
  /// Lists what is looked for. What the user selected stays selected; while it is not among it, the
  /// first one is, so that Enter takes what was found.
  void listFound();
  bool isLookedFor(const ListedDefinition& device) const;
  void sort();
  void selectAgain();
  void deviceSelected();

  const ListedDefinition& deviceAt(std::int32_t row) const;
  /// Null when none is.
  const ListedDefinition* selectedDevice() const;

  const DeviceLibrary& library_;
  std::vector<const ListedDefinition*> devices_;  // as they are sorted
  std::string selected_;                          // by the user, or what is in the system
};

}  // namespace trellisar
