#include "trellisar/Dialog.h"

#include <utility>

namespace trellisar {
namespace {

constexpr forms::Twips margin = 150;
constexpr forms::Twips anyHeight = 1000;

}  // namespace

Dialog::Dialog(std::string name, const std::string& caption) : Form(std::move(name)) {
  setCaption(caption);
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
  pieces.push_back(forms::gap(margin));
  pieces.push_back(forms::row({forms::spring(), forms::item(cmdOK), forms::item(cmdCancel)}));
  const forms::Twips height =
      forms::layOut({margin, margin, width, anyHeight}, std::move(pieces)) + 2 * margin;
  const forms::Size frame{size().width - innerSize().width, size().height - innerSize().height};
  setSize({width + 2 * margin + frame.width, height + frame.height});
}

}  // namespace trellisar
