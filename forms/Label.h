#pragma once

#include "forms/Control.h"

namespace forms {

/// A text. A user can click it. As a link it also takes the focus, and Enter or Space click it; a
/// click with the mouse leaves the focus where it is.
class Label : public Captioned {
 public:
  Label(Container& container, std::string name, std::string caption = {})
      : Captioned(container, std::move(name), std::move(caption)) {}

  Kind kind() const override { return Kind::label; }

  bool isLink() const { return link_; }
  void setLink(bool link) { set(link_, link); }
  bool takesFocus() const override { return link_; }

  /// Whether the text is drawn with a border around it.
  bool hasBorder() const { return border_; }
  void setBorder(bool border) { set(border_, border); }

  Event<> click;

 private:
  void userClick() override { click.raise(); }
  bool userKey(const KeyDown& key) override;

  bool link_ = false;
  bool border_ = false;
};

}  // namespace forms
