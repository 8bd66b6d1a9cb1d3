#include "forms/HeadlessDesktop.h"

#include <algorithm>

#include "forms/Text.h"

namespace forms {
namespace {

constexpr Twips characterWidth = 90;
constexpr Twips textLineHeight = 195;

}  // namespace

void HeadlessDesktop::processEvents() {
  while (!tasks_.empty()) {
    const auto task = std::move(tasks_.front());
    tasks_.pop_front();
    task();
  }
}

Size HeadlessDesktop::textSize(const std::string& text, const Font&, Twips width) const {
  const Twips natural = length(text) * characterWidth;
  if (width <= 0 || natural <= width) return {natural, textLineHeight};
  const Twips perLine = std::max(width / characterWidth, Twips{1});
  const Twips lines = (length(text) + perLine - 1) / perLine;
  return {width, lines * textLineHeight};
}

}  // namespace forms
