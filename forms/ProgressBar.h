#pragma once

#include <algorithm>

#include "forms/Control.h"

namespace forms {

/// How far something has come: a value from 0 to the maximum.
class ProgressBar : public Control {
 public:
  ProgressBar(Container& container, std::string name) : Control(container, std::move(name)) {}

  Kind kind() const override { return Kind::progressBar; }
  std::string shownText() const override {
    return std::to_string(value_) + "/" + std::to_string(maximum_);
  }

  std::int32_t maximum() const { return maximum_; }
  /// At least 1. The value is held within it.
  void setMaximum(std::int32_t maximum) {
    set(maximum_, std::max(1, maximum));
    setValue(value_);
  }
  std::int32_t value() const { return value_; }
  /// What lies outside is held at the ends.
  void setValue(std::int32_t value) { set(value_, std::clamp(value, 0, maximum_)); }

 private:
  std::int32_t maximum_ = 100;
  std::int32_t value_ = 0;
};

}  // namespace forms
