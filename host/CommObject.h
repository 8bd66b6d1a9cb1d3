#pragma once

#include <cstdint>
#include <string>

#include "forms/Event.h"

namespace host {

/// The connection to the receiver. Its events arrive on the thread that made it, never inside the
/// call that caused them.
class CommObject {
 public:
  virtual ~CommObject() = default;

  /// Starts sending and returns at once; OnTransferComplete tells the end. An error that hinders
  /// the start is raised.
  virtual void StartTransfer(std::int16_t iWhat, std::int32_t lHandle, std::int16_t iMode) = 0;
  /// Sets the receiver's password; an empty one clears it. False: the receiver could not be reached
  /// or refused.
  [[nodiscard]] virtual bool SetPassword(const std::string& strPassword) = 0;
  /// The address, such as "tcp 192.168.1.20", that counts while the user has given none.
  virtual void SetDefaultAddress(const std::string& strAddress) = 0;
  virtual void ShowSetIPDialog(std::int32_t& hwnd) = 0;

  forms::Event<std::int32_t> DisplayHelp;         // lTopicID
  forms::Event<std::int16_t> OnTransferComplete;  // iVnxHandlesSent
};

}  // namespace host
