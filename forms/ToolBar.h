#pragma once

#include "forms/Control.h"
#include "forms/Menu.h"
#include "forms/Picture.h"

namespace forms {

/// A toolbar with one button that has a menu at its side.
class ToolBar : public Control {
 public:
  ToolBar(Container& container, std::string name) : Control(container, std::move(name)) {}

  Kind kind() const override { return Kind::toolBar; }
  bool takesFocus() const override { return true; }

  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture) { set(picture_, picture); }
  const Menu& menu() const { return menu_; }
  void setMenu(const Menu& menu) { set(menu_, menu); }

  Event<> buttonClick;
  /// An entry of the menu was chosen; the argument is its tag.
  Event<const std::string&> menuClick;

 private:
  friend class User;
  void userClick() override { buttonClick.raise(); }
  void userChoose(const std::string& tag) { menuClick.raise(tag); }
  bool userKey(const KeyDown& key) override {
    if (key.code != keys::space && key.code != keys::enter) return false;
    buttonClick.raise();
    return true;
  }

  Picture picture_;
  Menu menu_;
};

}  // namespace forms
