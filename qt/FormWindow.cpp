#include "qt/FormWindow.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QPainter>

#include "qt/Pictures.h"
#include "qt/ShownForm.h"

namespace qt {

FormWindow::FormWindow(ShownForm& shown, QWidget* owner) : QDialog(owner), shown_(shown) {
  setAutoFillBackground(true);
}

void FormWindow::setPicture(const forms::Picture& picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  update();
}

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();  // accelerators are the form's
    return true;
  }
  return QDialog::event(event);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  event->accept();
  const bool leftByWidget = focusWidget() && focusWidget() != this;
  if (!leftByWidget) shown_.press(*event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();  // the form hides its window when it goes
  shown_.close();
}

void FormWindow::done(int) { shown_.close(); }

void FormWindow::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  shown_.resized();
}

void FormWindow::paintEvent(QPaintEvent*) {
  if (picture_.isEmpty()) return;
  QPainter painter(this);
  painter.drawPixmap(0, 0, naturalPixmap(picture_, devicePixelRatioF()));
}

}  // namespace qt
