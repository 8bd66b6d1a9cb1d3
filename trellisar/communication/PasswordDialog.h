#pragma once

#include "receiver/Client.h"
#include "trellisar/dialogs/WaitingDialog.h"

namespace trellisar {

/// Waits until a receiver has taken a password.
class PasswordDialog : public WaitingDialog {
 public:
  /// The request outlives the window.
  PasswordDialog(const receiver::Address& address, receiver::Request& request);

 private:
  bool poll(std::chrono::milliseconds wait) override { return request_.poll(wait); }
  void breakOff() override { request_.cancel(); }

  receiver::Request& request_;
};

}  // namespace trellisar
