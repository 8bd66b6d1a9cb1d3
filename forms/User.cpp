#include "forms/User.h"

#include <algorithm>
#include <functional>

#include "forms/Application.h"
#include "forms/CommandButton.h"
#include "forms/DropDownList.h"
#include "forms/Form.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/ListView.h"
#include "forms/OpenEdit.h"
#include "forms/OptionButton.h"
#include "forms/TabStrip.h"
#include "forms/Text.h"
#include "forms/TextBox.h"
#include "forms/ToolBar.h"

namespace forms {
namespace {

constexpr std::int16_t shiftKey = 1;
constexpr std::int16_t controlKey = 2;
constexpr std::int16_t altKey = 4;

/// Whether a click with the mouse takes the focus along. A label leaves it where it is.
bool takesFocusByMouse(const Control& control) {
  return control.takesFocus() && control.kind() != Kind::label;
}

void collectUsable(const Container& container, std::vector<Control*>& found) {
  for (Control* child : container.children()) {
    if (!child->isUsable()) continue;
    found.push_back(child);
    if (const Container* inner = child->asContainer()) collectUsable(*inner, found);
  }
}

template <typename Predicate>
CommandButton* findButton(Form& form, Predicate isWanted) {
  std::vector<Control*> controls;
  collectUsable(form, controls);
  for (Control* control : controls) {
    auto* button = dynamic_cast<CommandButton*>(control);
    if (button && std::invoke(isWanted, *button)) return button;
  }
  return nullptr;
}

}  // namespace

void User::check(const Control& control) const {
  if (!control.isUsable()) {
    throw Refused("\"" + control.name() + "\" is " + (control.isShown() ? "disabled" : "hidden") +
                  ".");
  }
  if (control.form() != application_.activeForm()) {
    throw Refused("\"" + control.name() + "\" lies behind another window.");
  }
}

/// An act may end the control that it was on, so that its form is looked up before. A dialog that
/// the act closed leaves the form below it to the act that opened the dialog.
void User::settle(Form* form) {
  if (form && form == application_.activeForm()) form->focus().settle();
  application_.acted.raise();
}

/// False when a validation kept the focus. A wrong value keeps nobody from a cancel button.
bool User::moveTo(Control& control) {
  Focus& focus = control.form()->focus();
  const auto* button = dynamic_cast<const CommandButton*>(&control);
  if (!button || !button->isCancel()) return focus.moveByUser(control);
  focus.moveByProgram(control);
  return true;
}

bool User::reach(Control& control) {
  check(control);
  return !takesFocusByMouse(control) || moveTo(control);
}

/// What the focus did on its way may have hidden or disabled the control.
void User::deliverClick(Control& control) {
  if (control.isUsable()) control.userClick();
}

void User::click(Control& control) {
  Form* form = control.form();
  if (reach(control)) {
    if (auto* button = dynamic_cast<CommandButton*>(&control)) {
      button->mouseDown.raise(MouseButton::left);
    }
    deliverClick(control);
  }
  settle(form);
}

void User::press(CommandButton& button, MouseButton mouseButton) {
  Form* form = button.form();
  if (mouseButton == MouseButton::left) return click(button);
  check(button);
  button.mouseDown.raise(mouseButton);
  settle(form);
}

bool User::moveFocus(Control& control) {
  Form* form = control.form();
  check(control);
  const bool moved = control.form()->focus().moveByUser(control);
  settle(form);
  return moved;
}

void User::tab() { press(keys::tab); }

void User::shiftTab() { press(keys::tab, shiftKey); }

void User::type(TextBox& box, const std::string& text) {
  Form* form = box.form();
  if (!reach(box)) return;
  for (const char32_t character : toCodePoints(text)) {
    if (box.hasFocus()) box.userType(character);
  }
  settle(form);
}

void User::replaceText(TextBox& box, const std::string& text) {
  Form* form = box.form();
  if (!reach(box)) return;
  box.selectAll();
  box.userInsert(text);
  settle(form);
}

void User::edit(TextBox& box, const std::string& text, std::int32_t caret) {
  Form* form = box.form();
  if (reach(box)) box.userEdit(text, caret);
  settle(form);
}

void User::press(std::int16_t code, std::int16_t shift) {
  Form* form = application_.activeForm();
  if (!form) return;
  KeyDown key{code, shift};
  if (form->keyPreview() || !form->focus().control()) form->keyDown.raise(key);
  Control* control = form->focus().control();
  if (key.code != 0 && control) control->keyDown.raise(key);
  const bool goesOn = key.code != 0 && form == application_.activeForm();
  const bool isTaken = goesOn && (pressShortcut(*form, key) ||
                                  (control && control->isUsable() && control->userKey(key)));
  if (goesOn && !isTaken) pressOnForm(*form, key);
  settle(form);
}

bool User::pressShortcut(Form& form, const KeyDown& key) {
  if (key.shift != controlKey) return false;
  CommandButton* button = findButton(form, [&](const CommandButton& candidate) {
    return candidate.shortcut() != 0 && candidate.shortcut() == static_cast<char32_t>(key.code);
  });
  if (!button) return false;
  Control* before = form.focus().control();
  if (!moveTo(*button)) return true;
  deliverClick(*button);
  const bool isStill = form.focus().control() == button && before && before->isUsable();
  if (isStill) form.focus().moveByUser(*before);
  return true;
}

void User::pressOnForm(Form& form, const KeyDown& key) {
  if ((key.shift & altKey) != 0) {
    pressAccelerator(static_cast<char32_t>(key.code));
    return;
  }
  if (key.code == keys::tab) {
    if ((key.shift & shiftKey) != 0) {
      form.focus().moveToPrevious();
    } else {
      form.focus().moveToNext();
    }
    return;
  }
  Control* button = nullptr;
  if (key.code == keys::enter) button = findButton(form, &CommandButton::isDefault);
  if (key.code == keys::escape) button = findButton(form, &CommandButton::isCancel);
  if (button && moveTo(*button)) deliverClick(*button);
}

bool User::pressAccelerator(char32_t letter) {
  Form* form = application_.activeForm();
  if (!form) return false;
  std::vector<Control*> controls;
  collectUsable(*form, controls);
  const auto bearer = std::find_if(controls.begin(), controls.end(), [&](Control* control) {
    const auto* captioned = dynamic_cast<Captioned*>(control);
    return captioned && captioned->accelerator() == lowerCase(letter);
  });
  if (bearer == controls.end()) return false;
  if ((*bearer)->takesFocus()) {
    if (moveTo(**bearer)) deliverClick(**bearer);
  } else {
    const auto next = std::find_if(bearer, controls.end(), [](Control* c) { return c->isStop(); });
    if (next != controls.end()) form->focus().moveByUser(**next);
  }
  settle(form);
  return true;
}

void User::select(ListBox& list, std::int32_t place) {
  Form* form = list.form();
  if (reach(list)) list.userSelect(place);
  settle(form);
}

void User::doubleClick(ListBox& list, std::int32_t place) {
  Form* form = list.form();
  if (reach(list)) list.userDoubleClick(place);
  settle(form);
}

void User::select(DropDownList& list, std::int32_t place) {
  Form* form = list.form();
  if (reach(list)) list.userSelect(place);
  settle(form);
}

void User::select(ListView& list, std::int32_t row) {
  Form* form = list.form();
  if (reach(list)) list.userSelect(row);
  settle(form);
}

void User::doubleClick(ListView& list, std::int32_t row) {
  Form* form = list.form();
  if (reach(list)) list.userDoubleClick(row);
  settle(form);
}

void User::clickHeading(ListView& list, std::int32_t column) {
  Form* form = list.form();
  if (reach(list)) list.headingClick.raise(column);
  settle(form);
}

void User::editLabel(ListView& list, std::int32_t row, const std::string& text) {
  Form* form = list.form();
  if (!list.isLabelEditable())
    throw Refused("The labels of \"" + list.name() + "\" can't be edited.");
  if (!reach(list)) return;
  list.userSelect(row);
  list.startLabelEdit();
  list.userEditLabel(text);
  list.userEndLabelEdit(true);
  settle(form);
}

void User::labelText(ListView& list, const std::string& text) {
  list.userEditLabel(text);
  application_.acted.raise();
}

void User::endLabelEdit(ListView& list, bool accept) {
  Form* form = list.form();
  list.userEndLabelEdit(accept);
  settle(form);
}

void User::select(TabStrip& strip, std::int16_t page) {
  Form* form = strip.form();
  if (!strip.hasHeadersInSight()) {
    throw Refused("The headers of \"" + strip.name() + "\" are out of sight.");
  }
  if (!strip.isPageVisible(page)) {
    throw Refused("\"" + strip.name() + "\" shows no page " + std::to_string(page) + ".");
  }
  if (reach(strip)) strip.setCurrentPage(page);
  settle(form);
}

void User::choose(ToolBar& toolBar, const std::string& tag) {
  Form* form = toolBar.form();
  const auto& menu = toolBar.menu();
  const auto entry = std::find_if(menu.begin(), menu.end(), [&](const MenuEntry& candidate) {
    return candidate.tag == tag && candidate.enabled;
  });
  if (entry == menu.end()) {
    throw Refused("\"" + toolBar.name() + "\" has no entry \"" + tag + "\".");
  }
  if (reach(toolBar)) toolBar.userChoose(tag);
  settle(form);
}

void User::resume(Form& form, const OpenEdit& edit) {
  Control* control = controlAt(form, edit.control);
  if (!control || !control->isUsable() || &form != application_.activeForm()) return;
  if (auto* box = dynamic_cast<TextBox*>(control)) {
    this->edit(*box, edit.text, length(edit.text));
    return;
  }
  auto* list = dynamic_cast<ListView*>(control);
  if (!list || edit.row < 0 || edit.row >= list->rowCount()) return;
  select(*list, edit.row);
  list->startLabelEdit();
  labelText(*list, edit.text);
}

bool User::close(Form& form) {
  if (&form != application_.activeForm()) {
    throw Refused("The window \"" + form.caption() + "\" lies behind another one.");
  }
  return form.unload(UnloadMode::closeBox);
}

}  // namespace forms
