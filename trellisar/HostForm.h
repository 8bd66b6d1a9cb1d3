#pragma once

#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/Form.h"
#include "forms/Rows.h"

namespace trellisar {

/// A window of the host that stands over the active form.
class HostForm : public forms::Form {
 protected:
  HostForm(std::string name, const std::string& caption) : Form(std::move(name)) {
    setCaption(caption);
  }

  /// Lays the pieces out above the buttons, which stand at the right, and gives the window the
  /// size that all need. `atLeft` stands at the left of them (null: nothing does).
  void layOutAbove(const std::vector<forms::Control*>& buttons, forms::Twips width,
                   forms::Pieces pieces, forms::Control* atLeft = nullptr);
};

}  // namespace trellisar
