#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "forms/Container.h"
#include "forms/Control.h"

namespace forms {

class Form;
class UserControl;

/// What a front end attaches to a form to draw it.
class FormView : public View {
 public:
  /// A control came into a container of the form through `Root::addControl` or
  /// `Control::setContainer`.
  virtual void childAdded(Control& control) = 0;
};

/// A form or a user control: what declares controls under names of its own and has an active one
/// among them.
class Root : public Container {
 public:
  Root& contentRoot() override { return *this; }

  /// The form itself, or the form that a user control stands on; null where there is none.
  virtual Form* ownerForm() = 0;

  /// The control of this name, in any container of the root; null when there is none. Names of a
  /// control array have their index: "txtDelay(0)".
  Control* find(std::string_view name) const;

  /// As `find`. Raises Error 344 with the name when there is none.
  Control& control(std::string_view name) const;

  /// All controls of the root by name.
  const std::map<std::string, Control*, std::less<>>& controls() const { return controls_; }

  /// Creates a user control from its program id, in this root's own container. It lives until
  /// `removeControl` or the end of the root. Raises Error 429 for an unknown id and Error 457 for a
  /// name that is taken.
  UserControl& addControl(std::string_view programId, const std::string& name);

  /// Ends a control that `addControl` made. Raises Error 344 when there is none of this name.
  void removeControl(std::string_view name);

  /// The control of this root that has the focus, or holds the control that has it; null when the
  /// focus is elsewhere.
  Control* activeControl() const { return active_; }

  /// Raises the validation of the active control, if there is one, as if the focus left it. Returns
  /// False when it was refused; callers that only want the value stored do not look.
  bool validateActiveControl();

  virtual FormView* formView() = 0;

 protected:
  Root();
  ~Root() override;

  /// Ends all controls that `addControl` made.
  void endCreated();

 private:
  friend class Control;
  friend class Focus;
  void enter(Control& control);
  void leave(Control& control);

  std::map<std::string, Control*, std::less<>> controls_;
  std::map<std::string, std::unique_ptr<UserControl>, std::less<>> created_;
  Control* active_ = nullptr;
};

}  // namespace forms
