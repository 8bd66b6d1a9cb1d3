#include "qt/ShapeAdapters.h"

#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QProgressBar>

#include "qt/Painting.h"
#include "qt/Pictures.h"

namespace qt {
namespace {

class LineWidget : public QWidget {
 public:
  using QWidget::QWidget;

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect line = width() >= height() ? QRect(0, height() / 2, width(), 1)
                                           : QRect(width() / 2, 0, 1, height());
    painter.fillRect(line, lineColor(palette()));
  }
};

}  // namespace

class PictureWidget : public QLabel {
 public:
  using QLabel::QLabel;

  void showPicture(const forms::Picture& picture) {
    picture_ = picture;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const QPixmap pixmap = fittedPixmap(picture_, size(), devicePixelRatioF());
    if (pixmap.isNull()) return;
    const QSize drawn = pixmap.deviceIndependentSize().toSize();
    QPainter painter(this);
    painter.drawPixmap((width() - drawn.width()) / 2, (height() - drawn.height()) / 2, pixmap);
  }

 private:
  forms::Picture picture_;
};

LineAdapter::LineAdapter(forms::Line& line, const Place& place)
    : Adapter(line, place, new LineWidget(&place.parent)) {}

/// A line of no height is still a pixel high.
void LineAdapter::show() { widget()->resize(widget()->size().expandedTo({1, 1})); }

ImageAdapter::ImageAdapter(forms::Image& image, const Place& place)
    : Adapter(image, place, new PictureWidget(&place.parent)),
      image_(image),
      picture_(static_cast<PictureWidget*>(widget())) {}

void ImageAdapter::show() {
  picture_->setAutoFillBackground(image_.backColor() != forms::colors::buttonFace);
  picture_->showPicture(image_.picture());
}

bool ImageAdapter::mouseReleased(QWidget& part, QMouseEvent& event) {
  const bool inside = part.rect().contains(event.position().toPoint());
  if (event.button() == Qt::LeftButton && inside && image_.isUsable()) {
    act([this](forms::User& user) { user.click(image_); });
  }
  return true;
}

ProgressBarAdapter::ProgressBarAdapter(forms::ProgressBar& bar, const Place& place)
    : Adapter(bar, place, new QProgressBar(&place.parent)), bar_(bar) {
  static_cast<QProgressBar*>(widget())->setTextVisible(false);
}

void ProgressBarAdapter::show() {
  auto& bar = *static_cast<QProgressBar*>(widget());
  bar.setMaximum(bar_.maximum());
  bar.setValue(bar_.value());
}

}  // namespace qt
