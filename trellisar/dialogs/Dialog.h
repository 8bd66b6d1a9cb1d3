#pragma once

#include <string>

#include "forms/CommandButton.h"
#include "trellisar/dialogs/HostForm.h"

namespace trellisar {

/// A dialog of the host, with "cmdOK" and "cmdCancel". Escape and the close box are Cancel.
class Dialog : public HostForm {
 public:
  /// Shows the dialog over the active form. True when OK has ended it.
  bool run();

  forms::CommandButton cmdOK{*this, "cmdOK", "OK"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 protected:
  Dialog(std::string name, const std::string& caption, std::int16_t helpTopic);

  /// Lays the pieces out above the two buttons and gives the dialog the height that they need.
  void layOutAbove(forms::Twips width, forms::Pieces pieces);

  /// What OK does before the dialog closes; False keeps it open.
  virtual bool accept() { return true; }

  void end();

 private:
  bool accepted_ = false;
};

}  // namespace trellisar
