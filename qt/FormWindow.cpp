#include "qt/FormWindow.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

#include "qt/Conversions.h"
#include "qt/Pictures.h"
#include "qt/ShownForm.h"

namespace qt {

class FormWindow::Contents : public QWidget {
 public:
  void setPicture(const forms::Picture& picture) {
    if (picture_ == picture) return;
    picture_ = picture;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (picture_.isEmpty()) return;
    QPainter painter(this);
    painter.scale(formScale(), formScale());
    painter.drawPixmap(0, 0, naturalPixmap(picture_, devicePixelRatioF()));
  }

 private:
  forms::Picture picture_;
};

FormWindow::FormWindow(ShownForm& shown, QWidget* owner)
    : QDialog(owner), shown_(shown), contents_(new Contents) {
  setAutoFillBackground(true);
  area_.setFrameShape(QFrame::NoFrame);
  area_.setFocusPolicy(Qt::NoFocus);
  area_.setWidget(contents_);
  contents_->setAutoFillBackground(true);
}

QWidget& FormWindow::contents() { return *contents_; }

void FormWindow::setPicture(const forms::Picture& picture) { contents_->setPicture(picture); }

QSize FormWindow::room() const {
  return (screen() ? screen() : QGuiApplication::primaryScreen())->availableGeometry().size() -
         roomForFrame;
}

void FormWindow::showFixed(const QSize& inner) {
  contents_->resize(inner);
  const QSize shown = inner.boundedTo(room());
  if (shown == inner) return setFixedSize(inner);
  setMinimumSize({});
  setMaximumSize(inner);
  resize(shown);
}

void FormWindow::showSizeable(const QSize& inner, const QSize& least) {
  contents_->resize(inner);
  setMinimumSize(least.boundedTo(room()));
  if (size() != inner) resize(inner.boundedTo(room()));
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
  area_.resize(size());
  shown_.resized();
}

}  // namespace qt
