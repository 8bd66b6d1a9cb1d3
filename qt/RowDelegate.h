#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace qt {

/// Rows with room around their text, for the eye and for the editor of a label.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(8, 4);
  }
};

}  // namespace qt
