#include "qt/WindowMemory.h"

#include <QtCore/QDir>
#include <QtCore/QSettings>
#include <QtCore/QUrl>
#include <algorithm>

namespace qt {
namespace {

/// Titles and headings have characters that mean something in a key.
QString keyOf(const char* group, const QString& name, const char* what) {
  return QLatin1String(group) + QLatin1Char('/') +
         QString::fromLatin1(QUrl::toPercentEncoding(name)) + QLatin1Char('/') +
         QLatin1String(what);
}

}  // namespace

QVariant WindowMemory::read(const QString& key) const {
  return file_.isEmpty() ? QVariant() : QSettings(file_, QSettings::IniFormat).value(key);
}

void WindowMemory::write(const QString& key, const QVariant& value) const {
  if (!file_.isEmpty()) QSettings(file_, QSettings::IniFormat).setValue(key, value);
}

WindowMemory::Place WindowMemory::place(const QString& window) const {
  const QSize size = read(keyOf("windows", window, "size")).toSize();
  return {read(keyOf("windows", window, "corner")).toPoint(), {size.width(), size.height()}};
}

void WindowMemory::keepPlace(const QString& window, const Place& place) const {
  write(keyOf("windows", window, "corner"), place.corner);
  write(keyOf("windows", window, "size"), QSize(place.size.width, place.size.height));
}

QList<int> WindowMemory::columns(const QString& list) const {
  QList<int> widths;
  for (const QVariant& width : read(keyOf("lists", list, "columns")).toList()) {
    widths << width.toInt();
  }
  return widths;
}

void WindowMemory::keepColumns(const QString& list, const QList<int>& widths) const {
  QVariantList values;
  for (const int width : widths) values << width;
  write(keyOf("lists", list, "columns"), values);
}

QString WindowMemory::folder(const QString& dialog) const {
  const QString folder = read(keyOf("dialogs", dialog, "folder")).toString();
  return folder.isEmpty() || !QDir(folder).exists() ? QString() : folder;
}

void WindowMemory::keepFolder(const QString& dialog, const QString& folder) const {
  write(keyOf("dialogs", dialog, "folder"), folder);
}

QRect clamped(const QRect& window, const QRect& screen) {
  const QSize size = window.size().boundedTo(screen.size());
  return {std::clamp(window.left(), screen.left(), screen.right() - size.width() + 1),
          std::clamp(window.top(), screen.top(), screen.bottom() - size.height() + 1), size.width(),
          size.height()};
}

}  // namespace qt
