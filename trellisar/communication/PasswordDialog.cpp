#include "trellisar/communication/PasswordDialog.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6000;

}  // namespace

PasswordDialog::PasswordDialog(const receiver::Address& address, receiver::Request& request)
    : WaitingDialog("PasswordDialog", "Password"), request_(request) {
  lblState.setCaption("Telling the receiver at " + address.text() + " its password...");
  layOutAbove({&cmdCancel}, dialogWidth, {forms::rest(lblState)});
}

}  // namespace trellisar
