#include "forms/Container.h"

#include <algorithm>

#include "forms/Control.h"
#include "forms/Root.h"

namespace forms {

Container::~Container() {
  for (Control* child : children_) {
    if (child->root_ == this) continue;
    child->container_ = child->root_;
    child->container_->children_.push_back(child);
  }
}

bool Container::contains(const Control& control) const {
  const Container* container = &control.container();
  while (container != this) {
    Control* holder = const_cast<Container*>(container)->asControl();
    if (!holder) return false;
    container = &holder->container();
  }
  return true;
}

void Container::readLast(Control& child) {
  if (std::erase(children_, &child) > 0) children_.push_back(&child);
}

void Container::adopt(Control& child) {
  children_.push_back(&child);
  childAdded(child);
}

void Container::release(Control& child) {
  std::erase(children_, &child);
  childRemoved(child);
}

}  // namespace forms
