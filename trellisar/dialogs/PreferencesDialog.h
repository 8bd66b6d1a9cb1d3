#pragma once

#include <string>

#include "forms/CheckBox.h"
#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "trellisar/dialogs/Dialog.h"
#include "trellisar/settings/Preferences.h"

namespace trellisar {

/// The host's preferences: the folder for new systems, where an empty box stands for the usual one,
/// and whether the user sees what a save changes.
class PreferencesDialog : public Dialog {
 public:
  explicit PreferencesDialog(Preferences& preferences);

  forms::Label lblFolder{*this, "lblFolder", "&Folder for new systems:"};
  forms::TextBox txtFolder{*this, "txtFolder"};
  forms::CommandButton cmdBrowse{*this, "cmdBrowse", "B&rowse..."};
  forms::Label lblUsual{*this, "lblUsual"};
  forms::CheckBox chkChanges{*this, "chkChanges",
                             "&Show what changes before a built program is saved over"};

 protected:
  bool accept() override;

 private:
  void browse();

  Preferences& preferences_;
};

}  // namespace trellisar
