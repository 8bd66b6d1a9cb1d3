#pragma once

#include "forms/CheckBox.h"
#include "forms/OptionButton.h"
#include "qt/Adapter.h"

class QAbstractButton;

namespace qt {

/// What is clicked: pressing takes the focus, letting go over it clicks.
class ClickedAdapter : public Adapter {
 protected:
  ClickedAdapter(forms::Control& control, const Place& place, QAbstractButton* button);

  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  KeyUse useOf(QKeyEvent& event) override;
  void click();
};

class CheckBoxAdapter : public ClickedAdapter {
 public:
  CheckBoxAdapter(forms::CheckBox& box, const Place& place);

 protected:
  void show() override;

 private:
  forms::CheckBox& box_;
};

class OptionButtonAdapter : public ClickedAdapter {
 public:
  OptionButtonAdapter(forms::OptionButton& option, const Place& place);

 protected:
  void show() override;

 private:
  forms::OptionButton& option_;
};

}  // namespace qt
