#pragma once

#include <string>

#include "host/CommObject.h"
#include "host/Error.h"

namespace trellisar {

/// The connection to the receiver. It keeps the default address; this host does not send yet.
class Communication : public host::CommObject {
 public:
  void StartTransfer(std::int16_t, std::int32_t, std::int16_t) override {
    throw host::NotAvailable("The transfer to a receiver");
  }
  bool SetPassword(const std::string&) override {
    throw host::NotAvailable("Setting the receiver's password");
  }
  void SetDefaultAddress(const std::string& strAddress) override { defaultAddress_ = strAddress; }
  void ShowSetIPDialog(std::int32_t&) override {
    throw host::NotAvailable("The dialog of the IP settings");
  }

 private:
  std::string defaultAddress_;
};

}  // namespace trellisar
