#pragma once

#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "trellisar/dialogs/Dialog.h"
#include "trellisar/settings/Preferences.h"

namespace trellisar {

/// The host's preferences: the folder for new systems. An empty box stands for the usual folder.
class PreferencesDialog : public Dialog {
 public:
  explicit PreferencesDialog(Preferences& preferences);

  forms::Label lblFolder{*this, "lblFolder", "&Folder for new systems:"};
  forms::TextBox txtFolder{*this, "txtFolder"};
  forms::CommandButton cmdBrowse{*this, "cmdBrowse", "B&rowse..."};
  forms::Label lblUsual{*this, "lblUsual"};

 protected:
  bool accept() override;

 private:
  void browse();

  Preferences& preferences_;
};

}  // namespace trellisar
