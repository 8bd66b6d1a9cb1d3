#include "qt/PushButtonAdapter.h"

#include <QtGui/QPainter>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QStyle>

#include "qt/Conversions.h"
#include "qt/Painting.h"
#include "qt/Pictures.h"

namespace qt {
namespace {

constexpr int pictureMargin = 4;
constexpr int flatMargin = 6;
constexpr int focusInset = 3;
constexpr int entryFocusInset = 1;
constexpr int hoverStrength = 40;

}  // namespace

/// A flat one is an entry of a list: its text stands at the left and may take several lines.
class PushButton : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void paintEvent(QPaintEvent* event) override {
    const bool entry = isFlat() && icon().isNull();
    if (!entry) QPushButton::paintEvent(event);
    QPainter painter(this);
    if (entry) drawEntry(painter);
    const int inset = entry ? entryFocusInset : focusInset;
    if (hasFocus()) drawFocus(painter, *this, rect().adjusted(inset, inset, -inset, -inset));
  }

 private:
  void drawEntry(QPainter& painter) {
    if (underMouse() && isEnabled()) {
      QColor hover = palette().color(QPalette::Highlight);
      hover.setAlpha(hoverStrength);
      painter.fillRect(rect(), hover);
    }
    style()->drawItemText(
        &painter, rect().adjusted(flatMargin, 0, -flatMargin, 0),
        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic, palette(),
        isEnabled(), text(), QPalette::WindowText);
  }
};

PushButtonAdapter::PushButtonAdapter(forms::CommandButton& button, const Place& place)
    : ClickedAdapter(button, place, new PushButton(&place.parent)),
      button_(button),
      widget_(static_cast<PushButton*>(widget())) {
  widget_->setAutoDefault(false);
}

void PushButtonAdapter::show() {
  const QSize room = widget_->size() - QSize(2 * pictureMargin, 2 * pictureMargin);
  const bool pictured = !button_.picture().isEmpty();
  widget_->setIcon(iconOf(button_.picture(), room, widget_->devicePixelRatioF()));
  widget_->setIconSize(room);
  const QString caption = toQt(pictured ? std::string() : button_.caption());
  if (widget_->text() != caption) widget_->setText(caption);
  showShortcut();
  widget_->setFlat(button_.isFlat());
  widget_->setDefault(button_.isDefault());
  widget_->setAutoFillBackground(button_.isFlat() &&
                                 button_.backColor() != forms::colors::buttonFace);
}

void PushButtonAdapter::showShortcut() {
  if (button_.shortcut() == 0) return;
  const QString keys = QStringLiteral("Ctrl+") + QChar(static_cast<char16_t>(button_.shortcut()));
  const QString tip = toQt(button_.toolTip());
  widget_->setToolTip(tip.isEmpty() ? keys : tip + QStringLiteral(" (") + keys + QLatin1Char(')'));
}

/// A cancel button gets the focus with its click, which validates nothing.
bool PushButtonAdapter::mousePressed(QWidget& part, QMouseEvent& event) {
  if (event.button() == Qt::RightButton) {
    act([this](forms::User& user) { user.press(button_, forms::MouseButton::right); });
    return true;
  }
  const bool cancels = button_.isCancel() && event.button() == Qt::LeftButton;
  return !cancels && ClickedAdapter::mousePressed(part, event);
}

}  // namespace qt
