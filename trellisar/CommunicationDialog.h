#pragma once

#include <functional>
#include <string>

#include "forms/TextBox.h"
#include "trellisar/Dialog.h"

namespace trellisar {

/// A dialog about the link to the receiver: one with "cmdHelp".
class CommunicationDialog : public Dialog {
 public:
  forms::CommandButton cmdHelp{*this, "cmdHelp", "Help"};

 protected:
  /// `help` shows the help.
  CommunicationDialog(std::string name, const std::string& caption, std::function<void()> help);

  void layOutAbove(forms::Twips width, forms::Pieces pieces);

  /// Tells what is wrong with the text of a box, and goes there; false.
  bool refuse(forms::TextBox& box, const std::string& message);
};

}  // namespace trellisar
