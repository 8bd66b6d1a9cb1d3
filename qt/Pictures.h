#pragma once

#include <QtGui/QIcon>
#include <QtGui/QPixmap>

#include "forms/Picture.h"

namespace qt {

/// A picture in its proportions, as large as it fits into the box. Read when it is first asked for,
/// and kept; nothing where its file can't be read.
QPixmap fittedPixmap(const forms::Picture& picture, const QSize& box, qreal pixelRatio);

/// A picture in its own size.
QPixmap naturalPixmap(const forms::Picture& picture, qreal pixelRatio);

/// A picture for a button or an entry of a list, sharp at any scale.
QIcon iconOf(const forms::Picture& picture, const QSize& size, qreal pixelRatio);

}  // namespace qt
