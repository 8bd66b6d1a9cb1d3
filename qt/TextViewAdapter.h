#pragma once

#include "forms/TextView.h"
#include "qt/Adapter.h"

class QPlainTextEdit;

namespace qt {

class TextViewAdapter : public Adapter {
 public:
  TextViewAdapter(forms::TextView& view, const Place& place);

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  bool keyLeft(QKeyEvent& event) override;

 private:
  forms::TextView& view_;
  QPlainTextEdit* edit_;
  QString shown_;
};

}  // namespace qt
