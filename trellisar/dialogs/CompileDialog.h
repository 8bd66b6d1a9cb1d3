#pragma once

#include <string>
#include <vector>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/ProgressBar.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/dialogs/HostForm.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// Builds the program of a system: checks all of it, compiles it and stores it beside the system.
/// Without errors the window closes by itself; else it lists them, each with the page of the add-in
/// that mends it, and stays until it is closed or one of the pages is asked for.
/// Cancel, and the close box, leave everything as it was.
class CompileDialog : public HostForm {
 public:
  /// `guide` knows the pages on which errors are mended (null: nobody does).
  explicit CompileDialog(DocumentPtr document, host::ProgramGuide* guide = nullptr);

  /// Shows the window over the active form. True when the program was stored.
  bool run();
  bool isCancelled() const { return cancelled_; }

  forms::Label lblState{*this, "lblState"};
  forms::ProgressBar prgProgress{*this, "prgProgress"};
  forms::Label lblErrors{*this, "lblErrors", "&Errors:"};
  forms::ListBox lstErrors{*this, "lstErrors"};
  forms::Label lblPage{*this, "lblPage"};
  forms::CommandButton cmdGoTo{*this, "cmdGoTo", "&Go to Page"};
  forms::CommandButton cmdCopy{*this, "cmdCopy", "C&opy"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};
  forms::CommandButton cmdClose{*this, "cmdClose", "Close"};

 private:
  void work();
  std::vector<ProgramError> check();
  bool advance();
  void compile();
  void showErrors(std::vector<ProgramError> errors);
  std::string pageOf(const ProgramError& error) const;
  void errorSelected();
  void goToPage();
  void copyErrors() const;

  DocumentPtr document_;
  host::ProgramGuide* guide_;
  std::vector<ProgramError> errors_;  // as in the list
  bool started_ = false;
  bool cancelled_ = false;
  bool stored_ = false;
};

}  // namespace trellisar
