#pragma once

#include <functional>
#include <string>

#include "forms/TextBox.h"
#include "trellisar/dialogs/Dialog.h"

namespace trellisar {

/// A dialog about the link to the receiver, whose help is shown by whoever opened it.
class CommunicationDialog : public Dialog {
 protected:
  /// `help` shows the help.
  CommunicationDialog(std::string name, const std::string& caption, std::function<void()> help);

  /// Tells what is wrong with the text of a box, and goes there; false.
  bool refuse(forms::TextBox& box, const std::string& message);

 private:
  void showHelp() override { help_(); }

  std::function<void()> help_;
};

}  // namespace trellisar
