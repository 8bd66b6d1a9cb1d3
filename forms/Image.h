#pragma once

#include "forms/Control.h"
#include "forms/Picture.h"

namespace forms {

/// A picture, fitted into its bounds without a change of its proportions. Its tool tip describes
/// it; without one it is decoration.
class Image : public Control {
 public:
  Image(Container& container, std::string name) : Control(container, std::move(name)) {}

  Kind kind() const override { return Kind::image; }

  const Picture& picture() const { return picture_; }
  void setPicture(const Picture& picture) { set(picture_, picture); }

  Event<> click;

 private:
  void userClick() override { click.raise(); }

  Picture picture_;
};

}  // namespace forms
