#pragma once

#include "forms/TextBox.h"
#include "qt/Adapter.h"

class QLineEdit;

namespace qt {

/// Characters are typed into the form, through its filter. All other editing (paste, cut, undo,
/// what an input method composes at once) is the widget's, and the form is told what came of it.
class TextBoxAdapter : public Adapter {
 public:
  TextBoxAdapter(forms::TextBox& box, const Place& place);

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  bool mouseReleased(QWidget& part, QMouseEvent& event) override;
  KeyUse useOf(QKeyEvent& event) override;
  bool keyLeft(QKeyEvent& event) override;
  bool composed(QInputMethodEvent& event) override;

 private:
  void type(const QString& text);
  void edited();
  void selected();
  void showText(const QString& text);
  void showSelection(const QString& text);

  forms::TextBox& box_;
  QLineEdit* edit_;
  bool typing_ = false;
  bool cameByMouse_ = false;  // with the button that is down
};

}  // namespace qt
