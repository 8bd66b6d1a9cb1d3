#pragma once

#include <string>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/Control.h"
#include "forms/Form.h"
#include "forms/Rows.h"

namespace trellisar {

/// A window of the host that stands over the active form. One with a topic of its own has a button
/// for it.
class HostForm : public forms::Form {
 public:
  forms::CommandButton cmdHelp{*this, "cmdHelp", "Help"};

 protected:
  HostForm(std::string name, const std::string& caption, std::int16_t helpTopic = 0);

  /// Lays the pieces out above the buttons, which stand at the right, and gives the window the
  /// size that all need.
  void layOutAbove(const std::vector<forms::Control*>& buttons, forms::Twips width,
                   forms::Pieces pieces);

 private:
  virtual void showHelp();
};

}  // namespace trellisar
