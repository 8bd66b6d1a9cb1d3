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

  /// Enter clicks the default button of a form where the focus is on none, Escape its cancel button.
  bool isDefault() const { return default_; }
  void setDefault(bool isDefault) { set(default_, isDefault); }
  bool isCancel() const { return cancel_; }
  void setCancel(bool isCancel) { set(cancel_, isCancel); }

  Event<> click;
  /// Goes before `click`; a press with the right button raises this alone.
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
};

}  // namespace forms
