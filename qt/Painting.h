#pragma once

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

namespace qt {

/// Of borders and lines: seen on a light window and on a dark one.
QColor lineColor(const QPalette& palette);

/// A border of one pixel within a rectangle, which no scale of the screen leaves out on one side.
void drawBorder(QPainter& painter, const QRect& rect, const QColor& color);

/// The mark of the focus around a part of a widget.
void drawFocus(QPainter& painter, const QWidget& widget, const QRect& around);

}  // namespace qt
