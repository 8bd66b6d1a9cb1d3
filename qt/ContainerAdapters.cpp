#include "qt/ContainerAdapters.h"

#include <QtGui/QPainter>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QStyle>

#include "qt/Conversions.h"
#include "qt/Painting.h"

namespace qt {
namespace {

constexpr int titleLeft = 8;
constexpr int titleGap = 3;

}  // namespace

/// Its border runs through the middle of its title, so that what it holds may begin right below the
/// title.
class Box : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  void showFrame(const forms::Frame& frame) {
    const QString caption = toQt(frame.caption());
    if (title() != caption) setTitle(caption);
    bordered_ = frame.hasBorder();
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (!bordered_) return;
    QPainter painter(this);
    const int titleHeight = title().isEmpty() ? 0 : fontMetrics().height();
    drawBorder(painter, rect().adjusted(0, titleHeight / 2, 0, 0), lineColor(palette()));
    if (title().isEmpty()) return;
    const int width = fontMetrics().size(Qt::TextShowMnemonic, title()).width();
    const QRect text(titleLeft, 0, width + 1, titleHeight);
    painter.fillRect(text.adjusted(-titleGap, 0, titleGap, 0), palette().window());
    style()->drawItemText(&painter, text, Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic,
                          palette(), isEnabled(), title(), QPalette::WindowText);
  }

 private:
  bool bordered_ = true;
};

FrameAdapter::FrameAdapter(forms::Frame& frame, const Place& place)
    : Adapter(frame, place, new Box(&place.parent)),
      frame_(frame),
      box_(static_cast<Box*>(widget())) {
  box_->setAutoFillBackground(true);
}

void FrameAdapter::show() { box_->showFrame(frame_); }

UserControlAdapter::UserControlAdapter(forms::UserControl& control, const Place& place)
    : Adapter(control, place, new QWidget(&place.parent)) {
  widget()->setAutoFillBackground(true);
}

}  // namespace qt
