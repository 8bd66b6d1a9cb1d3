#include "forms/Root.h"

#include "forms/Components.h"
#include "forms/Form.h"
#include "forms/UserControl.h"

namespace forms {

Root::Root() = default;

Root::~Root() { endCreated(); }

Control* Root::find(std::string_view name) const {
  const auto found = controls_.find(name);
  return found == controls_.end() ? nullptr : found->second;
}

Control& Root::control(std::string_view name) const {
  Control* found = find(name);
  if (!found) {
    throw Error(errors::controlNotFound, "There is no control \"" + std::string(name) + "\".");
  }
  return *found;
}

UserControl& Root::addControl(std::string_view programId, const std::string& name) {
  std::unique_ptr<UserControl> created = createControl(programId, *this, name);
  created->initProperties();
  UserControl& control = *(created_[name] = std::move(created));
  if (FormView* view = formView()) view->childAdded(control);
  return control;
}

void Root::removeControl(std::string_view name) {
  const auto found = created_.find(name);
  if (found == created_.end()) {
    throw Error(errors::controlNotFound,
                "There is no control \"" + std::string(name) + "\" that could be removed.");
  }
  created_.erase(found);
}

void Root::endCreated() { created_.clear(); }

bool Root::validateActiveControl() {
  bool cancel = false;
  if (active_) active_->validate.raise(cancel);
  return !cancel;
}

void Root::enter(Control& control) {
  if (!controls_.try_emplace(control.name(), &control).second) {
    throw Error(errors::nameInUse, "There is a control \"" + control.name() + "\" already.");
  }
}

void Root::leave(Control& control) {
  if (active_ == &control) active_ = nullptr;
  controls_.erase(control.name());
}

}  // namespace forms
