#pragma once

#include <memory>
#include <optional>
#include <string>

#include "host/CommObject.h"
#include "receiver/Address.h"
#include "receiver/Outcome.h"
#include "trellisar/operations/Session.h"

namespace trellisar {

class TransferDialog;

/// The connection to the receiver.
///
/// The receiver is at the first of these that there is: the address of this run (`setAddress`), the
/// one in use in the user's address book, the one of the user's IP settings, the default address.
class Communication : public host::CommObject, public std::enable_shared_from_this<Communication> {
 public:
  explicit Communication(std::shared_ptr<Session> session);
  ~Communication() override;

  /// Sends the stored compiled program of the open system, with the properties of the device with
  /// the handle `lHandle`; the other two numbers have no meaning here. The window of the transfer
  /// opens when the application runs what is left for later, and closes by itself; after that
  /// OnTransferComplete tells a success, and then a window the user; a message tells anything else.
  ///
  /// An address that nobody chose is asked about first; then it is in the address book, or another
  /// one is chosen, or nothing is sent.
  ///
  /// Raises host::Error when no system is open, it has no compiled program or a panel no project
  /// beside it, the handle or the address is none, or another transfer has not ended.
  void StartTransfer(std::int16_t iWhat, std::int32_t lHandle, std::int16_t iMode) override;
  /// Waits for the receiver's answer, in a window when it does not come at once.
  bool SetPassword(const std::string& strPassword) override;
  void SetDefaultAddress(const std::string& strAddress) override { defaultAddress_ = strAddress; }
  void ShowSetIPDialog(std::int32_t& hwnd) override;

  /// The address of this run; empty: none. Raises host::Error errBadArgument for a text that is no
  /// address.
  void setAddress(const std::string& address);
  /// Where the receiver is, as it was given; empty: nothing tells.
  std::string address() const;

  /// Whether a transfer was started that has not ended.
  bool isSending() const { return dialog_ != nullptr; }
  /// How the last transfer ended; nothing while it has not, and when it could not be started.
  const std::optional<receiver::Outcome>& transferOutcome() const { return transferOutcome_; }
  /// How the last SetPassword since the last StartTransfer ended; nothing when there was none.
  const std::optional<receiver::Outcome>& passwordOutcome() const { return passwordOutcome_; }

 private:
  void runTransfer();
  bool isAddressChosen() const;
  /// Asks about an address that nobody chose; false when nothing may be sent.
  bool confirmAddress();
  receiver::Address receiverAddress() const;
  std::string shownReceiver() const;

  std::shared_ptr<Session> session_;
  std::string ownAddress_;
  std::string defaultAddress_;
  std::unique_ptr<TransferDialog> dialog_;  // of the transfer that has not ended
  std::optional<receiver::Outcome> transferOutcome_;
  std::optional<receiver::Outcome> passwordOutcome_;
};

}  // namespace trellisar
