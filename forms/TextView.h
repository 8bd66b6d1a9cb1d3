#pragma once

#include "forms/Control.h"

namespace forms {

/// Several lines of text to read, to select and to copy.
class TextView : public Control {
 public:
  TextView(Container& container, std::string name) : Control(container, std::move(name)) {
    setBackColor(colors::windowBackground);
  }

  Kind kind() const override { return Kind::textView; }
  bool takesFocus() const override { return true; }
  std::string shownText() const override { return text_; }

  const std::string& text() const { return text_; }
  void setText(const std::string& text) { set(text_, text); }

 private:
  std::string text_;
};

}  // namespace forms
