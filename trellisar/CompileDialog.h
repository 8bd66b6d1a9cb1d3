#pragma once

#include <string>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/ProgressBar.h"
#include "trellisar/DocumentData.h"
#include "trellisar/HostForm.h"

namespace trellisar {

/// Builds the program of a system: checks all of it, compiles it and stores it beside the system.
/// Without errors the window closes by itself; else it lists them and stays until it is closed.
/// Cancel, and the close box, leave everything as it was.
class CompileDialog : public HostForm {
 public:
  explicit CompileDialog(DocumentPtr document);

  /// Shows the window over the active form. True when the program was stored.
  bool run();
  bool isCancelled() const { return cancelled_; }

  forms::Label lblState{*this, "lblState"};
  forms::ProgressBar prgProgress{*this, "prgProgress"};
  forms::Label lblErrors{*this, "lblErrors", "&Errors:"};
  forms::ListBox lstErrors{*this, "lstErrors"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};

 private:
  void work();
  std::vector<std::string> check();
  bool advance();
  void compile();
  void showErrors(const std::vector<std::string>& errors);

  DocumentPtr document_;
  bool started_ = false;
  bool cancelled_ = false;
  bool stored_ = false;
};

}  // namespace trellisar
