#include "forms/Focus.h"

#include <algorithm>

#include "forms/Form.h"
#include "forms/TextBox.h"
#include "forms/UserControl.h"

namespace forms {
namespace {

Root* asRoot(Control* control) { return dynamic_cast<Root*>(control); }

bool holds(Control& control, const Control& target) {
  if (&control == &target) return true;
  const Container* container = control.asContainer();
  return container && container->contains(target);
}

/// The stops of a container in their order, and `kept` at its place, whether it is one or not.
void collectStops(const Container& container, Control* kept, std::vector<Control*>& stops) {
  for (Control* child : container.children()) {
    const bool usable = child->isUsable();
    if (child == kept || (usable && child->isStop())) stops.push_back(child);
    const Container* inner = child->asContainer();
    if (!inner) continue;
    if (usable && (!asRoot(child) || child->tabStop())) {
      collectStops(*inner, kept, stops);
    } else if (kept && inner->contains(*kept)) {
      stops.push_back(kept);
    }
  }
}

/// A box that Tab comes to is selected, so that it is typed over.
bool moveByTab(Focus& focus, Control* target) {
  if (!target || !focus.moveByUser(*target)) return false;
  if (auto* box = dynamic_cast<TextBox*>(target)) box->selectAll();
  return true;
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
  if (const Container* container = target.asContainer(); container && !target.takesFocus()) {
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

bool Focus::moveToNext() { return moveByTab(*this, stopFrom(control(), true)); }

bool Focus::moveToPrevious() { return moveByTab(*this, stopFrom(control(), false)); }

bool Focus::moveToFirstField(const Container& container) {
  std::vector<Control*> inside;
  collectStops(container, nullptr, inside);
  if (inside.empty()) return false;
  const auto field = std::find_if(inside.begin(), inside.end(),
                                  [](const Control* stop) { return stop->kind() != Kind::label; });
  return moveByTab(*this, field == inside.end() ? inside.front() : *field);
}

void Focus::endEditing() {
  if (Control* current = control()) current->endEditing();
}

void Focus::settle() {
  Control* current = control();
  if (current && current->isUsable() && current->takesFocus()) return;
  Control* next = stopFrom(current, true);
  if (next && next != current) return enter(*next, current);
  activate(nullptr);
  if (current) current->lostFocus.raise();
}

std::vector<Control*> Focus::stops() const {
  std::vector<Control*> found;
  collectStops(form_, nullptr, found);
  return found;
}

Control* Focus::stopFrom(Control* from, bool forward) const {
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
