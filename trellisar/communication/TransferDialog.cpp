#include "trellisar/communication/TransferDialog.h"

#include "forms/Numbers.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6000;
constexpr forms::Twips progressHeight = 300;

}  // namespace

TransferDialog::TransferDialog(const receiver::Address& address, const receiver::Program& program)
    : WaitingDialog("TransferDialog", "Upload"),
      transfer_(address, program,
                {.progress = [this](std::uint64_t sent,
                                    std::uint64_t total) { showProgress(sent, total); },
                 .ended = [this](const receiver::Outcome& outcome) { outcome_ = outcome; }}) {
  prgProgress.nameBy(lblState);
  lblState.setCaption("Sending \"" + program.name + "\" to the receiver at " + address.text() +
                      "...");
  layOutAbove({&cmdCancel}, dialogWidth,
              {forms::rest(lblState), forms::rest(prgProgress, progressHeight)});
}

void TransferDialog::showProgress(std::uint64_t sent, std::uint64_t total) {
  // One more for the receiver's word that it has stored the program.
  prgProgress.setMaximum(forms::toInt32(static_cast<double>(total + 1)));
  prgProgress.setValue(forms::toInt32(static_cast<double>(sent)));
}

}  // namespace trellisar
