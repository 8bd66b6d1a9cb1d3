#include "trellisar/dialogs/WaitingDialog.h"

#include <utility>

#include "forms/Application.h"

namespace trellisar {
namespace {

using namespace std::chrono_literals;

constexpr auto waitForReceiver = 10ms;  // short, so that the window follows the user meanwhile

}  // namespace

WaitingDialog::WaitingDialog(std::string name, const std::string& caption)
    : HostForm(std::move(name), caption) {
  cmdCancel.setCancel(true);
  cmdCancel.click.connect([this] { cancel(); });
  queryUnload.connect([this](bool& keep, forms::UnloadMode) {
    if (ended_) return;
    keep = true;
    cancel();
  });
  activated.connect([this] {
    if (!std::exchange(started_, true)) work();
  });
}

void WaitingDialog::run() {
  showModal(nullptr);
  unload();
}

void WaitingDialog::work() {
  while (poll(waitForReceiver)) {
    forms::Application::current().processEvents();
    if (!isVisible()) breakOff();
  }
  ended_ = true;
  hide();
}

void WaitingDialog::cancel() {
  lblState.setCaption("Cancelling...");
  breakOff();
}

}  // namespace trellisar
