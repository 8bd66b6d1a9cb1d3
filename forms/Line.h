#pragma once

#include "forms/Control.h"

namespace forms {

/// A line across its bounds, for the eye alone.
class Line : public Control {
 public:
  Line(Container& container, std::string name) : Control(container, std::move(name)) {}

  Kind kind() const override { return Kind::line; }
};

}  // namespace forms
