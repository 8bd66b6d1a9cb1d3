#include "trellisar/operations/Communication.h"
#include "trellisar/dialogs/Messages.h"

#include <chrono>
#include <utility>

#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/Numbers.h"
#include "host/Error.h"
#include "host/Numbers.h"
#include "receiver/Client.h"
#include "receiver/Error.h"
#include "trellisar/communication/AddressBookDialog.h"
#include "trellisar/communication/IPSettingsDialog.h"
#include "trellisar/communication/PasswordDialog.h"
#include "trellisar/communication/TransferDialog.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/dialogs/DoneDialog.h"
#include "trellisar/panels/PanelState.h"

namespace trellisar {
namespace {

constexpr std::int16_t receiversSentTo = 1;

const DeviceData& deviceToSendTo(const DocumentData& document, std::int32_t handle) {
  const bool isHandle = forms::fitsInt16(handle) && handle > 0;
  const DevicePtr device =
      isHandle ? document.findByHandle(static_cast<std::int16_t>(handle)) : nullptr;
  if (device) return *device;
  throw host::Error(host::errBadArgument,
                    "The receiver that the program should be sent to is not in the system \"" +
                        document.name + "\".");
}

receiver::Program programToSend(const DocumentData& document, std::int32_t handle) {
  receiver::Program program;
  program.name = document.name;
  program.bytes = storedProgram(document);
  requireProjectFiles(document);
  for (const auto& [name, value] : deviceToSendTo(document, handle).properties) {
    program.properties[name] = value;
  }
  return program;
}

/// Whether the answer comes so soon that a window would only flicker.
bool answersAtOnce(receiver::Request& request) {
  using Clock = std::chrono::steady_clock;
  constexpr auto unseen = std::chrono::milliseconds(300);
  const auto end = Clock::now() + unseen;
  forms::Application& application = forms::Application::current();
  application.setMousePointer(forms::MousePointer::hourglass);
  const forms::AtEnd waited([&] { application.setMousePointer(forms::MousePointer::standard); });
  for (auto now = Clock::now(); now < end; now = Clock::now()) {
    if (!request.poll(std::chrono::ceil<std::chrono::milliseconds>(end - now))) return true;
  }
  return false;
}

}  // namespace

Communication::Communication(std::shared_ptr<Session> session) : session_(std::move(session)) {}

Communication::~Communication() = default;

void Communication::StartTransfer(std::int16_t, std::int32_t lHandle, std::int16_t) {
  session_->journal->note("StartTransfer " + std::to_string(lHandle));
  if (isSending()) {
    throw host::Error(host::errBadArgument,
                      "A system is being sent to the receiver. Wait for its end or cancel it, then "
                      "upload again.");
  }
  transferOutcome_.reset();
  passwordOutcome_.reset();
  try {
    const receiver::Program program = programToSend(*session_->data(), lHandle);
    if (!confirmAddress()) return;
    dialog_ = std::make_unique<TransferDialog>(receiverAddress(), program);
  } catch (const receiver::Error& error) {
    throw host::Error(host::errBadArgument,
                      std::string("The system can't be sent to the receiver. ") + error.what());
  }
  forms::Application::current().runLater([weak = weak_from_this()] {
    if (const auto self = weak.lock()) self->runTransfer();
  });
}

bool Communication::isAddressChosen() const {
  const Preferences& preferences = session_->preferences;
  return !ownAddress_.empty() || preferences.addressBook().inUse() ||
         !preferences.ipSettings().place().empty();
}

bool Communication::confirmAddress() {
  const std::string place = receiverAddress().text();
  if (isAddressChosen()) return true;
  // Yes, the default, sends nothing to a place that the user has not seen.
  const forms::Answer answer = forms::Application::current().messageBox(
      "No receiver has been chosen yet. The system would be sent to " + place +
          ".\r\n\r\nDo you want to choose the receiver first? Yes opens the address book; No sends "
          "the system to " +
          place + ", which is put into the address book.",
      forms::Buttons::yesNoCancel, forms::Icon::question);
  if (answer == forms::Answer::no) {
    session_->preferences.setAddressBook({{{"Receiver", place}}, 0});
  } else if (answer == forms::Answer::yes) {
    AddressBookDialog(session_->preferences, [this] {
      DisplayHelp.raise(host::helpFinishTab);
    }).run();
  }
  if (isAddressChosen()) return true;
  transferOutcome_ = receiver::Outcome{receiver::Outcome::Kind::cancelled,
                                       "No receiver was chosen, and nothing was sent."};
  return false;
}

void Communication::runTransfer() {
  {
    const forms::AtEnd ended([this] { dialog_.reset(); });
    dialog_->run();
    transferOutcome_ = dialog_->outcome();
  }
  // A listener may start the next one, to another receiver.
  const receiver::Outcome outcome = *transferOutcome_;
  const std::string receiver = shownReceiver();
  switch (outcome.kind) {
    case receiver::Outcome::Kind::done:
      session_->journal->note("OnTransferComplete");
      OnTransferComplete.raise(receiversSentTo);
      DoneDialog("Upload", "Sent to " + receiver + ", running.").run();
      break;
    case receiver::Outcome::Kind::cancelled:
      showFailure(outcome.message + " The receiver keeps the program that it had.");
      break;
    case receiver::Outcome::Kind::failed:
      showFailure("The system could not be sent to the receiver.\r\n\r\n" + outcome.message);
      break;
  }
}

bool Communication::SetPassword(const std::string& strPassword) {
  session_->journal->note(strPassword.empty() ? "SetPassword, empty" : "SetPassword");
  try {
    const receiver::Address address = receiverAddress();
    receiver::Request request = receiver::passwordRequest(address, strPassword);
    if (!answersAtOnce(request)) PasswordDialog(address, request).run();
    passwordOutcome_ = request.wait();
  } catch (const receiver::Error& error) {
    passwordOutcome_ = receiver::Outcome{receiver::Outcome::Kind::failed, error.what()};
  }
  return static_cast<bool>(*passwordOutcome_);
}

void Communication::ShowSetIPDialog(std::int32_t&) {
  session_->journal->note("ShowSetIPDialog");
  IPSettingsDialog(session_->preferences, [this] { DisplayHelp.raise(host::helpFinishTab); }).run();
}

void Communication::setAddress(const std::string& address) {
  try {
    if (!address.empty()) static_cast<void>(receiver::Address::parse(address));
  } catch (const receiver::Error& error) {
    throw host::Error(host::errBadArgument, error.what());
  }
  ownAddress_ = address;
}

std::string Communication::address() const {
  if (!ownAddress_.empty()) return ownAddress_;
  const Preferences& preferences = session_->preferences;
  if (const NamedAddress* inUse = preferences.addressBook().inUse()) return inUse->address;
  const std::string& place = preferences.ipSettings().place();
  return place.empty() ? defaultAddress_ : place;
}

/// `"Hall" at 10.0.0.7:47210` for one of the address book.
std::string Communication::shownReceiver() const {
  const NamedAddress* inUse = session_->preferences.addressBook().inUse();
  const bool isNamed = inUse && inUse->address == address();
  return (isNamed ? "\"" + inUse->name + "\"" : std::string("the receiver")) + " at " +
         receiverAddress().text();
}

receiver::Address Communication::receiverAddress() const {
  const std::string text = address();
  if (!text.empty()) return receiver::Address::parse(text);
  throw receiver::Error(
      "No receiver's address is known. Open the communication settings and add the receiver to the "
      "address book.");
}

}  // namespace trellisar
