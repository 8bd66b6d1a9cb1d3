#include "forms/ListBox.h"

#include <algorithm>

namespace forms {

std::string ListBox::shownText() const { return selected_ < 0 ? std::string() : text(selected_); }

void ListBox::add(const std::string& text, std::int32_t data) {
  items_.push_back({text, data});
  changed();
}

void ListBox::clear() {
  items_.clear();
  selected_ = -1;
  changed();
}

const ListBox::Item& ListBox::item(std::int32_t place) const {
  if (place < 0 || place >= count()) {
    throw Error(errors::indexOutOfRange,
                "The list \"" + name() + "\" has no item " + std::to_string(place) + ".");
  }
  return items_[static_cast<std::size_t>(place)];
}

void ListBox::setSelected(std::int32_t place) {
  if (place != -1) item(place);
  if (set(selected_, place)) click.raise();
}

void ListBox::userSelect(std::int32_t place) {
  item(place);
  set(selected_, place);
  click.raise();
}

void ListBox::userDoubleClick(std::int32_t place) {
  userSelect(place);
  doubleClick.raise();
}

bool ListBox::userKey(const KeyDown& key) {
  if ((key.code != keys::up && key.code != keys::down) || items_.empty()) return false;
  setSelected(std::clamp(selected_ + (key.code == keys::down ? 1 : -1), 0, count() - 1));
  return true;
}

}  // namespace forms
