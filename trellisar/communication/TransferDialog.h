#pragma once

#include <optional>

#include "forms/ProgressBar.h"
#include "receiver/Transfer.h"
#include "trellisar/dialogs/WaitingDialog.h"

namespace trellisar {

/// Sends a program to a receiver. Once the last byte has left, Cancel is too late: the window waits
/// for the receiver all the same.
class TransferDialog : public WaitingDialog {
 public:
  /// Raises what receiver::Transfer raises. Nothing is sent before `run`.
  TransferDialog(const receiver::Address& address, const receiver::Program& program);

  /// How the transfer ended, after `run`.
  const receiver::Outcome& outcome() const { return outcome_.value(); }

  forms::ProgressBar prgProgress{*this, "prgProgress"};

 private:
  bool poll(std::chrono::milliseconds wait) override { return transfer_.poll(wait); }
  void breakOff() override { transfer_.cancel(); }
  void showProgress(std::uint64_t sent, std::uint64_t total);

  std::optional<receiver::Outcome> outcome_;
  receiver::Transfer transfer_;
};

}  // namespace trellisar
