#pragma once

#include <optional>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ProgressBar.h"
#include "receiver/Transfer.h"
#include "trellisar/HostForm.h"

namespace trellisar {

/// Sends a program to a receiver and closes by itself at the end. Cancel, and the close box, break
/// off; once the last byte has left, the window waits for the receiver all the same.
class TransferDialog : public HostForm {
 public:
  /// Raises what receiver::Transfer raises. Nothing is sent before `run`.
  TransferDialog(const receiver::Address& address, const receiver::Program& program);

  /// Shows the window over the active form, once. How the transfer ended.
  receiver::Outcome run();

  forms::Label lblState{*this, "lblState"};
  forms::ProgressBar prgProgress{*this, "prgProgress"};
  forms::CommandButton cmdCancel{*this, "cmdCancel", "Cancel"};

 private:
  void work();
  void cancel();
  void showProgress(std::uint64_t sent, std::uint64_t total);

  bool started_ = false;
  std::optional<receiver::Outcome> outcome_;
  receiver::Transfer transfer_;
};

}  // namespace trellisar
