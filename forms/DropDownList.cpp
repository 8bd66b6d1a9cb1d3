#include "forms/DropDownList.h"

#include <algorithm>

namespace forms {

std::string DropDownList::shownText() const {
  return selected_ < 0 ? std::string() : text(selected_);
}

void DropDownList::add(const std::string& text, std::int16_t picture) {
  items_.push_back({text, picture});
  changed();
}

void DropDownList::clear() {
  items_.clear();
  selected_ = -1;
  changed();
}

const DropDownList::Item& DropDownList::item(std::int32_t place) const {
  if (place < 0 || place >= count()) {
    throw Error(errors::indexOutOfRange,
                "The list \"" + name() + "\" has no item " + std::to_string(place) + ".");
  }
  return items_[static_cast<std::size_t>(place)];
}

void DropDownList::setText(std::int32_t place, const std::string& text) {
  item(place);
  items_[static_cast<std::size_t>(place)].text = text;
  changed();
}

std::int32_t DropDownList::find(const std::string& text) const {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [&](const Item& candidate) { return candidate.text == text; });
  return found == items_.end() ? -1 : static_cast<std::int32_t>(found - items_.begin());
}

void DropDownList::setSelected(std::int32_t place) {
  if (place != -1) item(place);
  if (set(selected_, place)) click.raise();
}

bool DropDownList::userKey(const KeyDown& key) {
  if ((key.code != keys::up && key.code != keys::down) || items_.empty()) return false;
  setSelected(std::clamp(selected_ + (key.code == keys::down ? 1 : -1), 0, count() - 1));
  return true;
}

}  // namespace forms
