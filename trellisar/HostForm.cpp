#include "trellisar/HostForm.h"

#include <utility>

namespace trellisar {
namespace {

constexpr forms::Twips margin = 150;
constexpr forms::Twips anyHeight = 1000;

}  // namespace

void HostForm::layOutAbove(const std::vector<forms::Control*>& buttons, forms::Twips width,
                           forms::Pieces pieces, forms::Control* atLeft) {
  forms::Pieces last;
  if (atLeft) last.push_back(forms::item(*atLeft));
  last.push_back(forms::spring());
  for (forms::Control* button : buttons) last.push_back(forms::item(*button));
  pieces.push_back(forms::gap(margin));
  pieces.push_back(forms::row(std::move(last)));
  const forms::Twips height =
      forms::layOut({margin, margin, width, anyHeight}, std::move(pieces)) + 2 * margin;
  const forms::Size frame{size().width - innerSize().width, size().height - innerSize().height};
  setSize({width + 2 * margin + frame.width, height + frame.height});
}

}  // namespace trellisar
