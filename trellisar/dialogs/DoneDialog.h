#pragma once

#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "trellisar/dialogs/HostForm.h"

namespace trellisar {

/// The last word of something that took its time and went well; it stays until it is closed.
class DoneDialog : public HostForm {
 public:
  DoneDialog(const std::string& caption, const std::string& words);

  /// Shows the window over the active form, once.
  void run();

  forms::Label lblState{*this, "lblState"};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};
};

}  // namespace trellisar
