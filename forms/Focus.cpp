#include "forms/Focus.h"

#include <algorithm>

#include "forms/Form.h"
#include "forms/UserControl.h"

namespace forms {
namespace {

Root* asRoot(Control* control) { return dynamic_cast<Root*>(control); }

bool holds(Control& control, const Control& target) {
  if (&control == &target) return true;
  const Container* container = control.asContainer();
  return container && container->contains(target);
}

void collectStops(const Container& container, const Control* kept, std::vector<Control*>& stops) {
  for (Control* child : container.children()) {
    if (child == kept) stops.push_back(child);
    if (!child->isUsable()) continue;
    if (const Container* inner = child->asContainer()) {
      if (!asRoot(child) || child->tabStop()) collectStops(*inner, kept, stops);
    } else if (child != kept && child->isStop()) {
      stops.push_back(child);
    }
  }
}

}  // namespace

Control* Focus::control() const {
  Control* innermost = form_.activeControl();
  for (Root* root = asRoot(innermost); root && root->activeControl(); root = asRoot(innermost)) {
    innermost = root->activeControl();
  }
  return innermost;
}

bool Focus::moveByUser(Control& target) {
  Control* left = control();
  if (left == &target) return true;
  if (!target.isUsable() || !target.takesFocus()) return false;
  if (!leaveFor(target) || !target.isUsable()) {
    activate(left);
    return false;
  }
  enter(target, left);
  return true;
}

void Focus::moveByProgram(Control& target) {
  Control* innermost = &target;
  if (const Container* container = target.asContainer()) {
    std::vector<Control*> inside;
    collectStops(*container, nullptr, inside);
    if (!inside.empty()) innermost = inside.front();
  }
  if (!innermost->isUsable() || !innermost->takesFocus()) {
    throw Error(errors::invalidCall, "\"" + target.name() + "\" can't take the focus.");
  }
  Control* left = control();
  if (left == innermost) return;
  endEditing();
  enter(*innermost, left);
}

bool Focus::moveToNext() {
  Control* next = stopFrom(control(), true);
  return next && moveByUser(*next);
}

bool Focus::moveToPrevious() {
  Control* previous = stopFrom(control(), false);
  return previous && moveByUser(*previous);
}

void Focus::endEditing() {
  if (Control* current = control()) current->endEditing();
}

void Focus::settle() {
  Control* current = control();
  if (current && current->isUsable() && current->takesFocus()) return;
  Control* next = stopFrom(current, true);
  if (next && next != current) {
    enter(*next, current);
  } else {
    activate(nullptr);
  }
}

std::vector<Control*> Focus::stops() const {
  std::vector<Control*> found;
  collectStops(form_, nullptr, found);
  return found;
}

/// `from` keeps its place in the order even when it is no stop itself.
Control* Focus::stopFrom(const Control* from, bool forward) const {
  std::vector<Control*> order;
  collectStops(form_, from, order);
  if (order.empty()) return nullptr;
  if (!forward) std::reverse(order.begin(), order.end());
  const auto place = std::find(order.begin(), order.end(), from);
  if (place == order.end() || place + 1 == order.end()) return order.front();
  return *(place + 1);
}

bool Focus::leaveFor(const Control& target) {
  endEditing();
  Control* left = control();
  while (left && !holds(*left, target)) {
    Root& root = left->root();
    bool cancel = false;
    if (root.contains(target)) {
      left->validate.raise(cancel);
      return !cancel;
    }
    root.active_ = nullptr;
    left->validate.raise(cancel);  // out of its root nothing is refused
    left = root.asControl();
  }
  return true;
}

void Focus::enter(Control& target, Control* left) {
  activate(&target);
  if (left && left != &target) left->lostFocus.raise();
  if (control() == &target) target.gotFocus.raise();
}

void Focus::activate(Control* target) {
  for (Control* inner = form_.active_; inner;) {
    Root* root = asRoot(inner);
    inner = root ? std::exchange(root->active_, nullptr) : nullptr;
  }
  form_.active_ = nullptr;
  for (Control* inner = target; inner; inner = inner->root().asControl()) {
    inner->root().active_ = inner;
  }
  form_.focusMoved();
}

}  // namespace forms
