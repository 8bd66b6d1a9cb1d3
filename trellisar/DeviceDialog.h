#pragma once

#include <string>
#include <vector>

#include "forms/DropDownList.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "trellisar/Definition.h"
#include "trellisar/Dialog.h"

namespace trellisar {

/// Lets a user choose a device of the library. The list shows the devices of one maker, or at first
/// of all.
class DeviceDialog : public Dialog {
 public:
  /// `current` is the device that is in the system, which is selected at first; nothing: none is.
  DeviceDialog(const std::string& title, std::vector<DefinitionPtr> offered,
               const DefinitionPtr& current);

  /// The selected device; nothing when none is.
  DefinitionPtr chosen() const;

  forms::Label lblMaker{*this, "lblMaker", "&Maker:"};
  forms::DropDownList cboMaker{*this, "cboMaker"};
  forms::Label lblDevices{*this, "lblDevices", "&Device:"};
  forms::ListBox lstDevices{*this, "lstDevices"};
  forms::Label lblDescription{*this, "lblDescription"};

 private:
  void fillMakers();
  void fillDevices();
  void select(const DefinitionPtr& device);
  void deviceSelected();

  std::vector<DefinitionPtr> offered_;
};

}  // namespace trellisar
