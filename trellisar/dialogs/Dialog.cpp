#include "trellisar/dialogs/Dialog.h"

#include <utility>

namespace trellisar {

Dialog::Dialog(std::string name, const std::string& caption, std::int16_t helpTopic)
    : HostForm(std::move(name), caption, helpTopic) {
  cmdOK.setDefault(true);
  cmdOK.click.connect([this] { end(); });
  cmdCancel.setCancel(true);
  cmdCancel.click.connect([this] { hide(); });
}

void Dialog::end() {
  if (!accept()) return;
  accepted_ = true;
  hide();
}

bool Dialog::run() {
  accepted_ = false;
  showModal(nullptr);
  unload();
  return accepted_;
}

void Dialog::layOutAbove(forms::Twips width, forms::Pieces pieces) {
  HostForm::layOutAbove({&cmdOK, &cmdCancel}, width, std::move(pieces));
}

}  // namespace trellisar
