#pragma once

#include <vector>

namespace forms {

class Container;
class Control;
class Form;
class Root;

/// Who on a form has the focus, and what happens when it moves.
///
/// A user's move from one control to another, in this order:
///
///  1. An editor that is open in the control left (a label edit) is ended and taken.
///  2. For the control left, and for each user control around it that is left with it, from the
///  inside out: where the
///     focus stays within its root, its validation runs while it is still the root's active
///     control, and a refusal ends the move. Where the focus leaves its root, the root's active
///     control first becomes none, then the validation runs, and a refusal is ignored.
///  3. The active controls of all roots on the way to the new control become that way.
///  4. The control left raises `lostFocus`, the new one `gotFocus`. A handler that moves the focus
///  on is obeyed; what
///     the user did (the click) is delivered all the same.
///
/// A move by the program has the steps 1, 3 and 4.
class Focus {
 public:
  explicit Focus(Form& form) : form_(form) {}

  /// The control with the focus, the innermost one; null when the form has none.
  Control* control() const;

  /// False when a validation refused, or when a user can't reach the control. The focus is then
  /// where it was.
  bool moveByUser(Control& target);

  /// A container passes the focus on to the first stop in it. Raises Error 5 when a user couldn't
  /// reach the control.
  void moveByProgram(Control& target);

  /// Tab and Shift+Tab: to the next or previous control in the order of reading, round the end.
  /// False as `moveByUser`.
  bool moveToNext();
  bool moveToPrevious();
  /// As Tab, to the first stop in a container; to a link only where there is nothing else. False
  /// also when it has none.
  bool moveToFirstField(const Container& container);

  /// Ends and takes an editor that is open in the control with the focus.
  void endEditing();

  /// Gives a focus that has become hidden or disabled to the next control, without a validation.
  /// `User` calls it at the end of every act, so that a control that is disabled for a moment keeps
  /// the focus; where something else than an act of the user has changed the form, the front end
  /// does.
  void settle();

  /// The controls that Tab comes by, in its order.
  std::vector<Control*> stops() const;

 private:
  /// The stop behind `from`, or before it, round the end; null when there is none.
  Control* stopFrom(Control* from, bool forward) const;
  bool leaveFor(const Control& target);
  void enter(Control& target, Control* left);
  void activate(Control* target);

  Form& form_;
};

}  // namespace forms
