#pragma once

#include "forms/Control.h"
#include "forms/Picture.h"

namespace forms {

class CommandButton : public Captioned {
 public:
  CommandButton(Container& container, std::string name, std::string caption = {})
      : Captioned(container, std::move(name), std::move(caption)) {}

  Kind kind() const override { return Kind::commandButton; }
  bool takesFocus() const override { return true; }

  /// A picture stands in the place of the caption; the tool tip then says what the button does.
  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture) { set(picture_, picture); }

  /// Drawn without a border and with its text at the left, as an entry of a list of steps.
  bool isFlat() const { return flat_; }
  void setFlat(bool flat) { set(flat_, flat); }

  /// Enter clicks the default button of a form where the control with the focus has no use for it,
  /// Escape the cancel button. A click on the cancel button validates nothing.
  bool isDefault() const { return default_; }
  void setDefault(bool isDefault) { set(default_, isDefault); }
  bool isCancel() const { return cancel_; }
  void setCancel(bool isCancel) { set(cancel_, isCancel); }

  /// Control and this letter, an upper case one, click it wherever the focus is; 0: none does. What
  /// has the focus is validated, and has it again afterwards.
  char32_t shortcut() const { return shortcut_; }
  void setShortcut(char32_t letter) { set(shortcut_, letter); }

  Event<> click;
  /// A mouse button went down on it. The left one goes before `click`; the right one raises this
  /// alone, and a key none.
  Event<MouseButton> mouseDown;

 private:
  void userClick() override { click.raise(); }
  bool userKey(const KeyDown& key) override {
    if (key.code != keys::space && key.code != keys::enter) return false;
    click.raise();
    return true;
  }

  Picture picture_;
  bool flat_ = false;
  bool default_ = false;
  bool cancel_ = false;
  char32_t shortcut_ = 0;
};

}  // namespace forms
