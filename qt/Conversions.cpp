#include "qt/Conversions.h"

#include <QtCore/QHash>
#include <QtGui/QFontDatabase>
#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>

#include "forms/Container.h"
#include "forms/Control.h"
#include "forms/Form.h"
#include "forms/Root.h"

namespace qt {
namespace {

constexpr forms::Color systemBit = 0x80000000;
constexpr int darkest = 128;
constexpr int twipsPerPixel = 15;

double scale = 1;

QPalette::ColorRole roleOf(forms::Color color) {
  switch (color) {
    case forms::colors::windowBackground:
      return QPalette::Base;
    case forms::colors::windowText:
      return QPalette::Text;
    case forms::colors::buttonText:
      return QPalette::WindowText;
    case forms::colors::highlight:
      return QPalette::Highlight;
    case forms::colors::highlightText:
      return QPalette::HighlightedText;
    case forms::colors::hintBackground:
      return QPalette::ToolTipBase;
    default:
      return QPalette::Window;
  }
}

/// The colour that shows behind a control: the first of its own among what holds it.
forms::Color backgroundBehind(const forms::Control& control) {
  const forms::Control* inner = &control;
  while (inner) {
    if (inner->backColor() != forms::colors::buttonFace) return inner->backColor();
    const forms::Container& container = inner->container();
    inner = const_cast<forms::Container&>(container).asControl();
  }
  const forms::Form* form = control.form();
  return form ? form->backColor() : forms::colors::buttonFace;
}

bool isField(forms::Kind kind) {
  return kind == forms::Kind::textBox || kind == forms::Kind::textView ||
         kind == forms::Kind::listBox || kind == forms::Kind::listView ||
         kind == forms::Kind::dropDownList;
}

QColor textColor(const forms::Control& control) {
  const forms::Color background = backgroundBehind(control);
  if (!isSystemColor(control.foreColor()) || isSystemColor(background)) {
    return toQt(control.foreColor());
  }
  return isDark(toQt(background)) ? QColor(Qt::white) : QColor(Qt::black);
}

}  // namespace

double formScale() { return scale; }

void setFormScale(double newScale) { scale = newScale; }

int pixels(forms::Twips twips) { return qRound(twips * scale / twipsPerPixel); }

QSize pixels(const forms::Size& size) { return {pixels(size.width), pixels(size.height)}; }

QRect pixels(const forms::Rect& rect) {
  return {pixels(rect.left), pixels(rect.top), pixels(rect.width), pixels(rect.height)};
}

forms::Size twips(const QSize& size) {
  return {qRound(size.width() * twipsPerPixel / scale),
          qRound(size.height() * twipsPerPixel / scale)};
}

QString toQt(const std::string& text) { return QString::fromStdString(text); }

std::string fromQt(const QString& text) { return text.toStdString(); }

QString linesToQt(const std::string& text) {
  QString lines = toQt(text);
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  return lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

QString toolTipToQt(const std::string& text) {
  const QString plain = toQt(text);
  if (!Qt::mightBeRichText(plain)) return plain;
  return QStringLiteral("<span>") + plain.toHtmlEscaped() + QStringLiteral("</span>");
}

int unitsBefore(const QString& text, std::int32_t codePoint) {
  qsizetype unit = 0;
  for (std::int32_t i = 0; i < codePoint && unit < text.size(); ++i) {
    const bool pair = text[unit].isHighSurrogate() && unit + 1 < text.size();
    unit += pair ? 2 : 1;
  }
  return static_cast<int>(unit);
}

std::int32_t codePointsBefore(const QString& text, int unit) {
  return static_cast<std::int32_t>(text.left(unit).toUcs4().size());
}

QFont toQt(const forms::Font& font) {
  static QHash<QString, QString> families;
  const QString name = toQt(font.name);
  if (!families.contains(name)) {
    const bool installed = QFontDatabase::hasFamily(name);
    families.insert(name, installed ? name : QApplication::font().family());
  }
  QFont used = QApplication::font();
  used.setFamily(families.value(name));
  used.setPointSizeF(font.points * scale);
  used.setBold(font.bold);
  used.setUnderline(font.underline);
  return used;
}

bool isSystemColor(forms::Color color) { return (color & systemBit) != 0; }

QColor toQt(forms::Color color) {
  if (isSystemColor(color)) return QApplication::palette().color(roleOf(color));
  return QColor(static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
                static_cast<int>((color >> 16) & 0xFF));
}

bool isDark(const QColor& color) { return qGray(color.rgb()) < darkest; }

QPalette paletteOf(const forms::Control& control) {
  QPalette palette = QApplication::palette();
  if (!isField(control.kind())) {
    palette.setColor(QPalette::Window, toQt(control.backColor()));
  } else if (control.backColor() != forms::colors::windowBackground) {
    palette.setColor(QPalette::Base, toQt(control.backColor()));
  }
  const QColor text = textColor(control);
  for (const auto role : {QPalette::WindowText, QPalette::Text}) {
    palette.setColor(QPalette::Active, role, text);
    palette.setColor(QPalette::Inactive, role, text);
  }
  return palette;
}

}  // namespace qt
