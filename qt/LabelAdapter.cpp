#include "qt/LabelAdapter.h"

#include <QtGui/QPainter>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>
#include <functional>
#include <utility>

#include "qt/Conversions.h"
#include "qt/Painting.h"
#include "qt/Spoken.h"

namespace qt {
/// Draws its text itself, since a QLabel shows the mark of an accelerator as it is written where it
/// has no buddy.
class LabelWidget : public QLabel, public Spoken {
 public:
  LabelWidget(QWidget* parent, std::function<void()> click)
      : QLabel(parent), click_(std::move(click)) {}

  QAccessible::Role role() const override {
    return link_ ? QAccessible::Link : QAccessible::StaticText;
  }
  void press() override { click_(); }

  void showLabel(const forms::Label& label) {
    caption_ = linesToQt(label.caption());
    link_ = label.isLink();
    bordered_ = label.hasBorder();
    setText(toQt(label.shownText()));  // what a screen reader finds
    setAutoFillBackground(label.backColor() != forms::colors::buttonFace);
    if (link_ && label.isEnabled()) {
      setCursor(Qt::PointingHandCursor);
    } else {
      unsetCursor();
    }
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (bordered_) drawBorder(painter, rect(), lineColor(palette()));
    drawText(painter);
    const QRect text = painter.boundingRect(rect(), flags, caption_);
    if (hasFocus()) drawFocus(painter, *this, text.adjusted(-1, 0, 1, 0));
  }

 private:
  static constexpr int flags =
      Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap | Qt::TextShowMnemonic;

  void drawText(QPainter& painter) const {
    QFont font = painter.font();
    font.setUnderline(font.underline() || link_);
    painter.setFont(font);
    style()->drawItemText(&painter, rect(), flags, palette(), isEnabled(), caption_,
                          link_ && isEnabled() ? QPalette::Link : QPalette::WindowText);
  }

  std::function<void()> click_;
  QString caption_;
  bool link_ = false;
  bool bordered_ = false;
};

LabelAdapter::LabelAdapter(forms::Label& label, const Place& place)
    : Adapter(label, place, new LabelWidget(&place.parent, [this] { click(); })),
      label_(label),
      widget_(static_cast<LabelWidget*>(widget())) {
  widget_->setTextFormat(Qt::PlainText);
  if (label.hasBorder()) widget_->lower();  // it frames what stands before it
}

void LabelAdapter::show() { widget_->showLabel(label_); }

bool LabelAdapter::mouseReleased(QWidget& part, QMouseEvent& event) {
  const bool inside = part.rect().contains(event.position().toPoint());
  if (event.button() == Qt::LeftButton && inside && label_.isUsable()) click();
  return true;
}

void LabelAdapter::click() {
  if (hasControl()) act([this](forms::User& user) { user.click(label_); });
}

}  // namespace qt
