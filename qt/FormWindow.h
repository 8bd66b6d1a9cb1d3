#pragma once

#include <QtGui/QKeyEvent>
#include <QtWidgets/QDialog>
#include <QtWidgets/QScrollArea>

#include "forms/Picture.h"

namespace qt {

class ShownForm;

/// The window of a form. What happens to it as a whole goes to the form: the close box, a new size,
/// and the keys while no widget has them. Where the screen is too small for the form, the window
/// scrolls over it.
class FormWindow : public QDialog {
 public:
  FormWindow(ShownForm& shown, QWidget* owner);

  /// What the widgets of the controls stand on.
  QWidget& contents();

  void setPicture(const forms::Picture& picture);

  /// The size of the form's inside, and what the window is for it: fixed, or one that the user
  /// changes, down to `least`.
  void showFixed(const QSize& inner);
  void showSizeable(const QSize& inner, const QSize& least);
  /// Scrolls to what has the focus.
  void reveal(QWidget& widget) { area_.ensureWidgetVisible(&widget); }

  /// The part of the screen that a window of this kind can fill, without its frame.
  QSize room() const;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  /// Whatever Qt would end the dialog with is the close box.
  void done(int result) override;

 private:
  class Contents;

  ShownForm& shown_;
  QScrollArea area_{this};
  Contents* contents_;
};

}  // namespace qt
