#pragma once

#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <filesystem>

#include "forms/Geometry.h"

namespace qt {

/// How the user left the windows: where they stood, how large they were, how wide the columns of
/// their lists, and the folders that were gone to last. Nothing that was typed or answered is in
/// it. Without a file nothing is kept.
class WindowMemory {
 public:
  void keepIn(const std::filesystem::path& file) { file_ = QString::fromStdString(file.string()); }

  struct Place {
    QPoint corner;
    forms::Size size;
  };
  /// An empty size: the window was never left.
  Place place(const QString& window) const;
  void keepPlace(const QString& window, const Place& place) const;

  /// Empty: the user never changed one.
  QList<int> columns(const QString& list) const;
  void keepColumns(const QString& list, const QList<int>& widths) const;

  /// Empty: there was none, or it has gone.
  QString folder(const QString& dialog) const;
  void keepFolder(const QString& dialog, const QString& folder) const;

 private:
  QVariant read(const QString& key) const;
  void write(const QString& key, const QVariant& value) const;

  QString file_;
};

/// A window's rectangle moved, and where it must be shrunk, so that it lies on the screen.
QRect clamped(const QRect& window, const QRect& screen);

}  // namespace qt
