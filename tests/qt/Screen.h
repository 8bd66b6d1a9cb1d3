#pragma once

#include <gtest/gtest.h>

#include <QtWidgets/QMessageBox>
#include <QtWidgets/QWidget>
#include <functional>
#include <memory>
#include <string>

#include "forms/Application.h"
#include "forms/Form.h"
#include "qt/QtDesktop.h"

namespace tests {

/// Forms on a screen that nobody sees, with a hand at the mouse and the keyboard.
class Screen : public testing::Test {
 protected:
  Screen();

  static qt::QtDesktop& desktop();

  /// Shows the form, runs the script once its window is there, and hides the form.
  void show(forms::Form& form, const std::function<void()>& script);
  /// What the next message box or other modal window is done to.
  void whenBoxOpens(const std::function<void(QMessageBox&)>& script);
  /// Lets the event loop deal with what is waiting.
  void settle();

  static QWidget& window(const forms::Form& form);
  /// The widget of a control of the form, by the control's name.
  static QWidget& widget(const forms::Control& control);
  template <typename Widget>
  static Widget& widgetAs(const forms::Control& control) {
    return dynamic_cast<Widget&>(widget(control));
  }

  static void click(const forms::Control& control);
  static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void type(const std::string& text);
  /// The name of the control that has the form's focus, and that of the widget that has Qt's, which
  /// are to agree.
  static std::string focus(forms::Form& form);

  forms::Application application{desktop(), "\\"};
};

}  // namespace tests
