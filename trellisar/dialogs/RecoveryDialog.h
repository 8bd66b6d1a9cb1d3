#pragma once

#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "trellisar/dialogs/HostForm.h"

namespace trellisar {

/// Asks what becomes of a system that was not saved when the program ended. Escape and the close
/// box put it off, as the button for it does.
class RecoveryDialog : public HostForm {
 public:
  enum class Choice { later, restore, discard };

  struct Words {
    std::string what;   // was not saved, and when
    std::string where;  // its file, or that there is none
  };
  explicit RecoveryDialog(const Words& words);

  /// Shows the dialog over the active form, once.
  Choice run();

  forms::Label lblWhat{*this, "lblWhat"};
  forms::Label lblWhere{*this, "lblWhere"};
  forms::Label lblChoice{*this, "lblChoice",
                         "Restore opens it as it was, with nothing saved yet. Discard removes what "
                         "was not saved. Later asks again at the next start."};
  forms::CommandButton cmdRestore{*this, "cmdRestore", "&Restore"};
  forms::CommandButton cmdDiscard{*this, "cmdDiscard", "&Discard"};
  forms::CommandButton cmdLater{*this, "cmdLater", "Later"};

 private:
  void choose(Choice choice);

  Choice choice_ = Choice::later;
};

}  // namespace trellisar
