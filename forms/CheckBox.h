#pragma once

#include "forms/Control.h"

namespace forms {

/// A check box; its value is 1 when it is checked and 0 when it isn't.
class CheckBox : public Captioned {
 public:
  CheckBox(Container& container, std::string name, std::string caption = {})
      : Captioned(container, std::move(name), std::move(caption)) {}

  Kind kind() const override { return Kind::checkBox; }
  bool takesFocus() const override { return true; }

  std::int16_t value() const { return checked_ ? 1 : 0; }
  bool isChecked() const { return checked_; }
  /// Any number but 0 checks it. Raises `click` when the value changes.
  void setValue(std::int16_t value) { setChecked(value != 0); }
  void setChecked(bool checked) {
    if (set(checked_, checked)) click.raise();
  }

  /// The value is different, through the user or the program.
  Event<> click;

 private:
  void userClick() override { setChecked(!checked_); }
  bool userKey(const KeyDown& key) override {
    if (key.code != keys::space) return false;
    userClick();
    return true;
  }

  bool checked_ = false;
};

}  // namespace forms
