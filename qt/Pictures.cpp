#include "qt/Pictures.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtGui/QPixmapCache>
#include <QtSvg/QSvgRenderer>

#include "qt/Conversions.h"

namespace qt {
namespace {

const QColor haloColor(232, 237, 242);
constexpr forms::Color noMask = 0xFFFFFFFF;

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

QImage withoutMask(QImage image, const forms::Picture& picture) {
  if (!picture.mask()) return image;
  image = image.convertToFormat(QImage::Format_ARGB32);
  image.setAlphaChannel(image.createMaskFromColor(toQt(*picture.mask()).rgb(), Qt::MaskOutColor));
  return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

/// On a dark window the dark outline of a picture gets a light one around it.
QPixmap withHalo(const QPixmap& picture) {
  QPixmap light = picture;
  {
    QPainter painter(&light);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(light.rect(), haloColor);
  }
  QPixmap all(picture.size());
  all.setDevicePixelRatio(picture.devicePixelRatio());
  all.fill(Qt::transparent);
  QPainter painter(&all);
  for (const int x : {-1, 0, 1}) {
    for (const int y : {-1, 0, 1}) painter.drawPixmap(x, y, light);
  }
  painter.drawPixmap(0, 0, picture);
  return all;
}

bool isOnDark() { return isDark(QGuiApplication::palette().color(QPalette::Window)); }

/// An empty box stands for the picture's own size.
QPixmap readPixmap(const forms::Picture& picture, const QSize& box, qreal pixelRatio) {
  const QString file = fileOf(picture);
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
  return QPixmap::fromImage(withoutMask(reader.read(), picture)
                                .scaled(real, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QPixmap cachedPixmap(const forms::Picture& picture, const QSize& box, qreal pixelRatio) {
  if (picture.isEmpty()) return {};
  const QString file = fileOf(picture);
  const QString key = QStringLiteral("%1|%2|%3|%4|%5")
                          .arg(file)
                          .arg(box.width())
                          .arg(box.height())
                          .arg(pixelRatio)
                          .arg(picture.mask().value_or(noMask));
  QPixmap pixmap;
  if (!QPixmapCache::find(key, &pixmap)) {
    pixmap = readPixmap(picture, box, pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, pixmap);
  }
  return pixmap;
}

}  // namespace

QPixmap fittedPixmap(const forms::Picture& picture, const QSize& box, qreal pixelRatio) {
  if (box.isEmpty()) return {};
  const QPixmap pixmap = cachedPixmap(picture, box, pixelRatio);
  return pixmap.isNull() || !isOnDark() ? pixmap : withHalo(pixmap);
}

QPixmap naturalPixmap(const forms::Picture& picture, qreal pixelRatio) {
  return cachedPixmap(picture, {}, pixelRatio);
}

QIcon iconOf(const forms::Picture& picture, const QSize& size, qreal pixelRatio) {
  const QPixmap pixmap = fittedPixmap(picture, size, pixelRatio);
  return pixmap.isNull() ? QIcon() : QIcon(pixmap);
}

}  // namespace qt
