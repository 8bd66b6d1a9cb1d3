#pragma once

#include <QtGui/QKeyEvent>
#include <QtWidgets/QDialog>

#include "forms/Picture.h"

namespace qt {

class ShownForm;

/// The window of a form. What happens to it as a whole goes to the form: the close box, a new size,
/// and the keys while no widget has them.
class FormWindow : public QDialog {
 public:
  FormWindow(ShownForm& shown, QWidget* owner);

  void setPicture(const forms::Picture& picture);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  /// Whatever Qt would end the dialog with is the close box.
  void done(int result) override;

 private:
  ShownForm& shown_;
  forms::Picture picture_;
};

}  // namespace qt
