#pragma once

#include <stdexcept>
#include <string>

#include "forms/Control.h"

namespace forms {

class Application;
class CommandButton;
class DropDownList;
class Form;
class ListBox;
class ListView;
class TabStrip;
class TextBox;
class ToolBar;
struct OpenEdit;

/// What a person would have been refused: the control is hidden or disabled, or its form lies
/// behind another one.
class Refused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A person at the forms. Every act of one comes through here, from a window, an unattended run or
/// a test: it obeys what is hidden, disabled or behind a modal form (raising Refused), moves the
/// focus with its validations and raises the events. Where a validation keeps the focus, the act is
/// not delivered; callers see that from the state afterwards.
class User {
 public:
  explicit User(Application& application) : application_(application) {}

  /// A click with the left button: the focus moves to the control, where its kind takes it with the
  /// mouse, then the control is clicked, unless it has become hidden or disabled on the way. Option
  /// buttons, check boxes, buttons (which raise `mouseDown` before), labels, images and toolbars
  /// can be clicked; on others this only moves the focus.
  void click(Control& control);
  /// A click with one of the mouse's buttons. The right one leaves the focus where it is and raises
  /// `mouseDown` alone.
  void press(CommandButton& button, MouseButton mouseButton);

  /// Moves the focus. False when a validation refused.
  bool moveFocus(Control& control);
  void tab();
  void shiftTab();

  /// Types into a box, one character after the other, in the place of what is selected there. It
  /// ends where a handler takes the focus from the box. A box that is read-only takes nothing.
  void type(TextBox& box, const std::string& text);
  /// Puts a text in the place of all that the box holds, as if it were pasted; only its first line
  /// goes in.
  void replaceText(TextBox& box, const std::string& text);
  /// The box's text after an edit of the user's: what a front end reports that lets the user edit
  /// by itself.
  void edit(TextBox& box, const std::string& text, std::int32_t caret);

  /// A key to the control with the focus: its handlers, then what the key does to the control, then
  /// what it does to the form (Tab, Enter and Escape for its default and cancel button, Alt and a
  /// letter). Nothing where no form is open.
  void press(std::int16_t key, std::int16_t shift = 0);
  /// Alt and a letter: what bears the letter as its accelerator gets the focus and is clicked; a
  /// label or a frame gives the focus to the control behind it. False: nothing bears it.
  bool pressAccelerator(char32_t letter);

  /// These raise Error 9 for a place, row or page that there is not. A page that bears no header
  /// raises Refused.
  void select(ListBox& list, std::int32_t place);
  void doubleClick(ListBox& list, std::int32_t place);
  void select(DropDownList& list, std::int32_t place);
  void select(ListView& list, std::int32_t row);
  void doubleClick(ListView& list, std::int32_t row);
  void clickHeading(ListView& list, std::int32_t column);
  /// Opens the editor of a row's label, types the text in the place of the old one and ends it with
  /// Enter.
  void editLabel(ListView& list, std::int32_t row, const std::string& text);
  /// The open editor, as a front end has it: its text so far, and its end (taken or given up).
  void labelText(ListView& list, const std::string& text);
  void endLabelEdit(ListView& list, bool accept);
  void select(TabStrip& strip, std::int16_t page);
  /// Raises Refused when the menu has no enabled entry with the tag.
  void choose(ToolBar& toolBar, const std::string& tag);

  /// Begins a change anew that was open before. What is out of reach now is passed over.
  void resume(Form& form, const OpenEdit& edit);

  /// The close box of a form. False when the form stays.
  bool close(Form& form);

 private:
  void check(const Control& control) const;
  bool reach(Control& control);
  bool moveTo(Control& control);
  void deliverClick(Control& control);
  void pressOnForm(Form& form, const KeyDown& key);
  bool pressShortcut(Form& form, const KeyDown& key);
  void settle(Form* form);

  Application& application_;
};

}  // namespace forms
