#pragma once

#include <vector>

#include "forms/Control.h"

namespace forms {

/// A choice out of those in the same container: at most one of them is chosen.
class OptionButton : public Captioned {
 public:
  OptionButton(Container& container, std::string name, std::string caption = {})
      : Captioned(container, std::move(name), std::move(caption)) {}

  Kind kind() const override { return Kind::optionButton; }
  bool takesFocus() const override { return true; }
  bool isStop() const override;

  bool isChosen() const { return chosen_; }
  /// Becoming chosen makes the others of the container not chosen and then raises `click`; becoming
  /// not chosen, or staying what it was, raises nothing.
  void setChosen(bool chosen);

  Event<> click;

 private:
  void userClick() override { setChosen(true); }
  /// Space chooses; an arrow goes to the neighbour that can be used, which takes the focus and is
  /// chosen.
  bool userKey(const KeyDown& key) override;
  std::vector<OptionButton*> group() const;

  bool chosen_ = false;
};

}  // namespace forms
