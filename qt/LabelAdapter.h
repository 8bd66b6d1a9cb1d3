#pragma once

#include "forms/Label.h"
#include "qt/Adapter.h"

namespace qt {

class LabelWidget;

class LabelAdapter : public Adapter {
 public:
  LabelAdapter(forms::Label& label, const Place& place);

 protected:
  void show() override;
  bool mouseReleased(QWidget& part, QMouseEvent& event) override;

 private:
  void click();

  forms::Label& label_;
  LabelWidget* widget_;
};

}  // namespace qt
