#pragma once

#include <chrono>
#include <string>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "trellisar/dialogs/HostForm.h"

namespace trellisar {

/// A window that waits for a receiver and closes by itself at the end. It follows its user
/// meanwhile: Cancel, and the close box, break off.
class WaitingDialog : public HostForm {
 public:
  /// Shows the window over the active form, once.
  void run();

  forms::Label lblState{*this, "lblState"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 protected:
  WaitingDialog(std::string name, const std::string& caption);

  /// Goes on with the work for at most so long; false when it has ended.
  virtual bool poll(std::chrono::milliseconds wait) = 0;
  /// The next `poll` ends, if it is not too late.
  virtual void breakOff() = 0;

 private:
  void work();
  void cancel();

  bool started_ = false;
  bool ended_ = false;
};

}  // namespace trellisar
