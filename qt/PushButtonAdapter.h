#pragma once

#include "forms/CommandButton.h"
#include "qt/MarkedAdapters.h"

namespace qt {

class PushButton;

class PushButtonAdapter : public ClickedAdapter {
 public:
  PushButtonAdapter(forms::CommandButton& button, const Place& place);

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;

 private:
  void showShortcut();

  forms::CommandButton& button_;
  PushButton* widget_;
};

}  // namespace qt
