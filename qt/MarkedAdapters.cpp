#include "qt/MarkedAdapters.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>
#include <algorithm>

#include "qt/Conversions.h"
#include "qt/Painting.h"
#include "qt/Spoken.h"

namespace qt {
namespace {

constexpr forms::Twips textLeft = 285;
constexpr int textFlags =
    Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

/// Beside the first line of the text.
QRect markRect(const QWidget& button, const QRect& text, QStyle::PixelMetric metric) {
  const int size = button.style()->pixelMetric(metric, nullptr, &button);
  const int line = std::min(text.height(), button.fontMetrics().height());
  return {0, text.top() + (line - size) / 2, size, size};
}

/// A button with a mark whose text may take several lines, which Qt's own can't. To screen readers
/// an option button is one although the form keeps its group, and each is clicked, not toggled.
template <typename Button>
class Marked : public Button, public Spoken {
 public:
  using Button::Button;

  QAccessible::Role role() const override {
    return isCheck ? QAccessible::CheckBox : QAccessible::RadioButton;
  }
  void describe(QAccessible::State& state) const override {
    state.checkable = true;
    state.checked = this->isChecked();
  }
  void press() override { this->click(); }

  void showCaption(const forms::Captioned& control) {
    const QString caption = toQt(control.caption());
    if (this->text() != caption) this->setText(caption);
    this->setAutoFillBackground(control.backColor() != forms::colors::buttonFace);
  }

 protected:
  static constexpr bool isCheck = std::is_same_v<Button, QCheckBox>;

  bool hitButton(const QPoint& place) const override { return this->rect().contains(place); }

  void paintEvent(QPaintEvent*) override {
    QStylePainter painter(this);
    QStyleOptionButton option;
    this->initStyleOption(&option);
    const QRect area = this->rect().adjusted(pixels(textLeft), 0, 0, 0);
    const QRect text = painter.boundingRect(area, textFlags, this->text());
    option.rect =
        markRect(*this, text.isEmpty() ? area : text,
                 isCheck ? QStyle::PM_IndicatorHeight : QStyle::PM_ExclusiveIndicatorHeight);
    // The style draws the outline darker than the window, which a dark one leaves unseen.
    if (isDark(this->palette().color(QPalette::Window))) {
      option.palette.setColor(QPalette::Window, lineColor(this->palette()).lighter());
    }
    painter.drawPrimitive(isCheck ? QStyle::PE_IndicatorCheckBox : QStyle::PE_IndicatorRadioButton,
                          option);
    painter.drawItemText(area, textFlags, this->palette(), this->isEnabled(), this->text(),
                         QPalette::WindowText);
    if (!this->hasFocus()) return;
    drawFocus(painter, *this, this->text().isEmpty() ? this->rect() : text.adjusted(-2, -1, 2, 1));
  }
};

using MarkedCheck = Marked<QCheckBox>;
using MarkedOption = Marked<QRadioButton>;

}  // namespace

ClickedAdapter::ClickedAdapter(forms::Control& control, const Place& place, QAbstractButton* button)
    : Adapter(control, place, button) {
  connect(button, &QAbstractButton::clicked, this, [this] { click(); });
}

void ClickedAdapter::click() {
  if (!hasControl()) return;
  act([this](forms::User& user) { user.click(control()); });
}

bool ClickedAdapter::mousePressed(QWidget&, QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return true;
  const Reached reached = reach();
  if (reached == Reached::interrupted) click();
  return reached != Reached::smoothly;
}

/// A key that is held down clicks once.
ClickedAdapter::KeyUse ClickedAdapter::useOf(QKeyEvent& event) {
  const bool clicks =
      event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  return clicks && event.isAutoRepeat() ? KeyUse::nobody : KeyUse::form;
}

CheckBoxAdapter::CheckBoxAdapter(forms::CheckBox& box, const Place& place)
    : ClickedAdapter(box, place, new MarkedCheck(&place.parent)), box_(box) {}

void CheckBoxAdapter::show() {
  auto& button = *static_cast<MarkedCheck*>(widget());
  button.showCaption(box_);
  button.setChecked(box_.isChecked());
}

OptionButtonAdapter::OptionButtonAdapter(forms::OptionButton& option, const Place& place)
    : ClickedAdapter(option, place, new MarkedOption(&place.parent)), option_(option) {
  static_cast<MarkedOption*>(widget())->setAutoExclusive(false);  // the form keeps the group
}

void OptionButtonAdapter::show() {
  auto& button = *static_cast<MarkedOption*>(widget());
  button.showCaption(option_);
  button.setChecked(option_.isChosen());
}

}  // namespace qt
