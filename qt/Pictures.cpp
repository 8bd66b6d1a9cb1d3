#include "qt/Pictures.h"

#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtGui/QPixmapCache>
#include <QtSvg/QSvgRenderer>

namespace qt {
namespace {

QString fileOf(const forms::Picture& picture) {
  return QString::fromStdString(picture.file().string());
}

bool isDrawing(const QString& file) {
  return file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
}

QPixmap drawn(QSvgRenderer& renderer, const QSize& size) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  renderer.render(&painter);
  return pixmap;
}

/// An empty box stands for the picture's own size.
QPixmap readPixmap(const QString& file, const QSize& box, qreal pixelRatio) {
  QSvgRenderer renderer;
  QImageReader reader;
  if (isDrawing(file)) {
    if (!renderer.load(file)) return {};
  } else {
    reader.setFileName(file);
  }
  const QSize own = isDrawing(file) ? renderer.defaultSize() : reader.size();
  const QSize fitted = box.isEmpty() ? own : own.scaled(box, Qt::KeepAspectRatio);
  if (fitted.isEmpty()) return {};
  const QSize real = (QSizeF(fitted) * pixelRatio).toSize();
  if (isDrawing(file)) return drawn(renderer, real);
  return QPixmap::fromImage(
      reader.read().scaled(real, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QPixmap cachedPixmap(const forms::Picture& picture, const QSize& box, qreal pixelRatio) {
  if (picture.isEmpty()) return {};
  const QString file = fileOf(picture);
  const QString key =
      QStringLiteral("%1|%2|%3|%4").arg(file).arg(box.width()).arg(box.height()).arg(pixelRatio);
  QPixmap pixmap;
  if (!QPixmapCache::find(key, &pixmap)) {
    pixmap = readPixmap(file, box, pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, pixmap);
  }
  return pixmap;
}

}  // namespace

QPixmap fittedPixmap(const forms::Picture& picture, const QSize& box, qreal pixelRatio) {
  return box.isEmpty() ? QPixmap() : cachedPixmap(picture, box, pixelRatio);
}

QPixmap naturalPixmap(const forms::Picture& picture, qreal pixelRatio) {
  return cachedPixmap(picture, {}, pixelRatio);
}

QIcon iconOf(const forms::Picture& picture, const QSize& size, qreal pixelRatio) {
  const QPixmap pixmap = fittedPixmap(picture, size, pixelRatio);
  return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}

}  // namespace qt
