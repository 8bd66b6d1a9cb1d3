#pragma once

#include "forms/Container.h"
#include "forms/Control.h"

namespace forms {

/// A box around controls. What it holds can't be seen or used while the frame can't.
class Frame : public Captioned, public Container {
 public:
  Frame(Container& container, std::string name, std::string caption = {})
      : Captioned(container, std::move(name), std::move(caption)) {}

  Kind kind() const override { return Kind::frame; }
  Container* asContainer() override { return this; }
  Control* asControl() override { return this; }
  Root& contentRoot() override { return root(); }

  bool hasBorder() const { return border_; }
  void setBorder(bool border) { set(border_, border); }

 private:
  bool border_ = true;
};

}  // namespace forms
