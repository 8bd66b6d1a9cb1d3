#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <cstdint>
#include <string>

#include "forms/Geometry.h"

namespace forms {
class Control;
}

namespace qt {

/// How much larger than at their own size forms are drawn, texts and all, so that a larger font of
/// the system reaches them and cuts nothing. One for the process, as Qt's application is.
double formScale();
void setFormScale(double scale);

/// What the frame and the title of a window take of a screen, at most.
inline constexpr QSize roomForFrame{16, 40};

int pixels(forms::Twips twips);
QSize pixels(const forms::Size& size);
QRect pixels(const forms::Rect& rect);
forms::Size twips(const QSize& size);

QString toQt(const std::string& text);
std::string fromQt(const QString& text);

/// A text of several lines; a line may end in CR LF, CR or LF.
QString linesToQt(const std::string& text);

/// A tool tip is plain text, also where it looks like markup.
QString toolTipToQt(const std::string& text);

/// Places in a text: forms count code points, Qt UTF-16 units.
int unitsBefore(const QString& text, std::int32_t codePoint);
std::int32_t codePointsBefore(const QString& text, int unit);

/// The font that is really used: that of the name where it is installed, else the application's at
/// the same size.
QFont toQt(const forms::Font& font);

QColor toQt(forms::Color color);

/// Where a system colour stands behind it, it goes with the desktop's theme.
bool isSystemColor(forms::Color color);

bool isDark(const QColor& color);

/// The palette of a control: its colours as those of windows, of fields and of texts. On a
/// background of its own a text in a system colour stays readable.
QPalette paletteOf(const forms::Control& control);

}  // namespace qt
