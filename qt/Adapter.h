#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>
#include <functional>

#include "forms/Control.h"
#include "forms/User.h"

namespace qt {

class ShownForm;

/// Where a widget is made.
struct Place {
  ShownForm& form;
  QWidget& parent;
};

/// What joins a control and its widget. This base does what all kinds have in common; a class for
/// each kind shows what is its own and turns what happens to the widget into acts of the user.
///
/// The adapter sees the events of the widget before the widget does. Qt moves no focus and turns no
/// key into anything by itself.
class Adapter : public QObject, public forms::View {
 public:
  Adapter(forms::Control& control, const Place& place, QWidget* widget);
  ~Adapter() override;

  /// Must not be asked for after `detach`.
  forms::Control& control() const { return *control_; }
  QWidget* widget() const { return widget_; }

  /// What the widgets of the controls that it holds stand on.
  virtual QWidget* contents() const { return widget_; }
  /// What has Qt's focus while the control has the form's.
  virtual QWidget* focusWidget() const { return widget_; }

  /// Shows the control as it is now.
  void refresh();
  /// Names the widget for screen readers, as the control is named now.
  void nameForReaders();

  /// Lets the control go; the widget stays until its window goes.
  void release();

  void update() override;
  void detach() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// How far a press of the mouse came: `smoothly`, and Qt's widget may go on with it;
  /// `interrupted` by a window that came up, and the mouse is no longer pressed on the widget; or
  /// `not` at all.
  enum class Reached { smoothly, interrupted, notAtAll };

  ShownForm& form() const { return form_; }
  bool isShowing() const { return showing_; }
  /// False while the control is there no more.
  bool hasControl() const { return control_ != nullptr; }

  /// Also sees the events of a part of the widget.
  void watch(QWidget* part);
  void act(const std::function<void(forms::User&)>& deed);
  /// Runs an act that takes the focus along, and tells what came of it.
  Reached reachBy(const std::function<void(forms::User&)>& deed);
  Reached reach();

  /// Shows what is particular to the kind.
  virtual void show() = 0;

  // Each answers whether the event ends here; else Qt's widget gets it too.
  virtual bool mousePressed(QWidget& part, QMouseEvent& event);
  virtual bool mouseReleased(QWidget&, QMouseEvent&) { return false; }
  virtual bool doubleClicked(QWidget& part, QMouseEvent& event);
  virtual bool wheelTurned() { return false; }
  virtual bool composed(QInputMethodEvent&) { return false; }

  /// Who gets a key: the form first, the widget alone, or nobody, where it has done its work
  /// already.
  enum class KeyUse { form, widget, nobody };
  virtual KeyUse useOf(QKeyEvent&) { return KeyUse::form; }
  /// The form has seen the key, and the control still has the focus. Answers as those above.
  virtual bool keyLeft(QKeyEvent&) { return true; }

 private:
  bool keyPressed(QWidget& part, QKeyEvent& event);

  forms::Control* control_;
  ShownForm& form_;
  QPointer<QWidget> widget_;
  bool showing_ = false;
};

}  // namespace qt
