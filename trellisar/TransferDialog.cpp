#include "trellisar/TransferDialog.h"

#include <chrono>
#include <utility>

#include "forms/Application.h"
#include "forms/Numbers.h"

namespace trellisar {
namespace {

using namespace std::chrono_literals;

constexpr forms::Twips dialogWidth = 6000;
constexpr forms::Twips progressHeight = 300;
constexpr auto waitForReceiver = 10ms;  // short, so that the window follows the user meanwhile

}  // namespace

TransferDialog::TransferDialog(const receiver::Address& address, const receiver::Program& program)
    : HostForm("TransferDialog", "Upload"),
      transfer_(address, program,
                {.progress = [this](std::uint64_t sent,
                                    std::uint64_t total) { showProgress(sent, total); },
                 .ended = [this](const receiver::Outcome& outcome) { outcome_ = outcome; }}) {
  lblState.setCaption("Sending \"" + program.name + "\" to the receiver at " + address.text() +
                      "...");
  cmdCancel.setCancel(true);
  cmdCancel.click.connect([this] { cancel(); });
  queryUnload.connect([this](bool& keep, forms::UnloadMode) {
    if (outcome_) return;
    keep = true;
    cancel();
  });
  activated.connect([this] {
    if (!std::exchange(started_, true)) work();
  });
  layOutAbove({&cmdCancel}, dialogWidth,
              {forms::rest(lblState), forms::rest(prgProgress, progressHeight)});
}

receiver::Outcome TransferDialog::run() {
  showModal(nullptr);
  unload();
  return outcome_.value();
}

void TransferDialog::work() {
  while (transfer_.poll(waitForReceiver)) {
    forms::Application::current().processEvents();
    if (!isVisible()) transfer_.cancel();
  }
  hide();
}

void TransferDialog::cancel() {
  lblState.setCaption("Cancelling...");
  transfer_.cancel();
}

void TransferDialog::showProgress(std::uint64_t sent, std::uint64_t total) {
  // One more for the receiver's word that it has stored the program.
  prgProgress.setMaximum(forms::toInt32(static_cast<double>(total + 1)));
  prgProgress.setValue(forms::toInt32(static_cast<double>(sent)));
}

}  // namespace trellisar
