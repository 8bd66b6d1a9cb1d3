#include "qt/AccessibleName.h"

#include <limits>

#include "forms/Container.h"
#include "forms/Label.h"

namespace qt {
namespace {

constexpr forms::Twips tolerance = 150;
constexpr forms::Twips rowWeight = 10;  // a label of the same row wins over one above

/// How far a label is from what it may speak of; the largest number where it stands elsewhere.
forms::Twips distance(const forms::Rect& label, const forms::Rect& control) {
  const bool sameRow = label.top < control.bottom() && control.top < label.bottom();
  const bool sameColumn = label.left < control.right() && control.left < label.right();
  if (sameRow && label.right() <= control.left + tolerance) return control.left - label.right();
  if (sameColumn && label.bottom() <= control.top + tolerance) {
    return (control.top - label.bottom() + tolerance) * rowWeight;
  }
  return std::numeric_limits<forms::Twips>::max();
}

const forms::Label* labelBefore(const forms::Control& control) {
  const forms::Label* nearest = nullptr;
  forms::Twips least = std::numeric_limits<forms::Twips>::max();
  for (const forms::Control* sibling : control.container().children()) {
    const auto* label = dynamic_cast<const forms::Label*>(sibling);
    if (!label || !label->isVisible() || label->caption().empty()) continue;
    const forms::Twips found = distance(label->bounds(), control.bounds());
    if (found < least) nearest = label;
    least = std::min(least, found);
  }
  return nearest;
}

/// Up through composed controls: the one that a selector fills has its label outside.
const forms::Label* labelOf(const forms::Control& control) {
  if (const forms::Label* label = labelBefore(control)) return label;
  const forms::Container& container = control.container();
  const forms::Control* holder = const_cast<forms::Container&>(container).asControl();
  const bool composed = holder && holder->kind() == forms::Kind::userControl;
  return composed ? labelBefore(*holder) : nullptr;
}

}  // namespace

std::string nameOf(const forms::Control& control) {
  if (!control.accessibleName().empty()) return control.accessibleName();
  if (const auto* captioned = dynamic_cast<const forms::Captioned*>(&control)) {
    if (!captioned->caption().empty()) return captioned->shownText();
  } else if (control.takesFocus()) {
    if (const forms::Label* label = labelOf(control)) return label->shownText();
  }
  return control.toolTip();
}

}  // namespace qt
