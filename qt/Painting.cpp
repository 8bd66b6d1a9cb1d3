#include "qt/Painting.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionFocusRect>

#include "qt/Conversions.h"

namespace qt {

QColor lineColor(const QPalette& palette) {
  constexpr int onDark = 130;
  return isDark(palette.color(QPalette::Window)) ? QColor(onDark, onDark, onDark)
                                                 : palette.color(QPalette::Mid);
}

void drawBorder(QPainter& painter, const QRect& rect, const QColor& color) {
  painter.fillRect(rect.left(), rect.top(), rect.width(), 1, color);
  painter.fillRect(rect.left(), rect.bottom(), rect.width(), 1, color);
  painter.fillRect(rect.left(), rect.top(), 1, rect.height(), color);
  painter.fillRect(rect.right(), rect.top(), 1, rect.height(), color);
}

void drawFocus(QPainter& painter, const QWidget& widget, const QRect& around) {
  QStyleOptionFocusRect option;
  option.initFrom(&widget);
  option.rect = around.intersected(widget.rect());
  widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &widget);
}

}  // namespace qt
