#include "trellisar/dialogs/DoneDialog.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6000;

}  // namespace

DoneDialog::DoneDialog(const std::string& caption, const std::string& words)
    : HostForm("DoneDialog", caption) {
  lblState.setCaption(words);
  cmdClose.setDefault(true);
  cmdClose.setCancel(true);
  cmdClose.click.connect([this] { hide(); });
  layOutAbove({&cmdClose}, dialogWidth, {forms::rest(lblState)});
}

void DoneDialog::run() {
  showModal(nullptr);
  unload();
}

}  // namespace trellisar
