#include "forms/OptionButton.h"

#include <algorithm>

#include "forms/Container.h"
#include "forms/Form.h"

namespace forms {

std::vector<OptionButton*> OptionButton::group() const {
  std::vector<OptionButton*> members;
  for (Control* child : container().children()) {
    if (auto* option = dynamic_cast<OptionButton*>(child)) members.push_back(option);
  }
  return members;
}

/// Tab stops at the chosen one of a group, or at its first where none is.
bool OptionButton::isStop() const {
  if (!Control::isStop()) return false;
  const auto members = group();
  const auto chosen = std::find_if(members.begin(), members.end(), [](const OptionButton* option) {
    return option->chosen_ && option->isUsable();
  });
  if (chosen != members.end()) return *chosen == this;
  const auto first = std::find_if(members.begin(), members.end(), [](const OptionButton* option) {
    return option->isUsable() && option->tabStop();
  });
  return first != members.end() && *first == this;
}

void OptionButton::setChosen(bool chosen) {
  if (chosen_ == chosen) return;
  if (chosen) {
    for (OptionButton* other : group()) {
      if (other != this) other->set(other->chosen_, false);
    }
  }
  set(chosen_, chosen);
  if (chosen) click.raise();
}

bool OptionButton::userKey(const KeyDown& key) {
  if (key.code == keys::space) {
    userClick();
    return true;
  }
  const bool forward = key.code == keys::down || key.code == keys::right;
  if (!forward && key.code != keys::up && key.code != keys::left) return false;

  std::vector<OptionButton*> usable = group();
  std::erase_if(usable, [](const OptionButton* option) { return !option->isUsable(); });
  const auto place = std::find(usable.begin(), usable.end(), this) - usable.begin();
  const auto count = static_cast<std::ptrdiff_t>(usable.size());
  const auto next = (place + (forward ? 1 : count - 1)) % count;
  OptionButton& neighbour = *usable[static_cast<std::size_t>(next)];
  if (form() && form()->focus().moveByUser(neighbour)) neighbour.userClick();
  return true;
}

}  // namespace forms
