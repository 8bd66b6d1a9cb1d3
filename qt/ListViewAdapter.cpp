#include "qt/ListViewAdapter.h"

#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTreeWidget>
#include <algorithm>

#include "forms/Form.h"
#include "qt/Conversions.h"
#include "qt/RowDelegate.h"
#include "qt/Session.h"
#include "qt/ShownForm.h"

namespace qt {
namespace {

constexpr int leastEditorWidth = 120;

}  // namespace

ListViewAdapter::ListViewAdapter(forms::ListView& list, const Place& place)
    : Adapter(list, place, new QTreeWidget(&place.parent)),
      list_(list),
      tree_(static_cast<QTreeWidget*>(widget())) {
  tree_->setRootIsDecorated(false);
  tree_->setUniformRowHeights(true);
  tree_->setItemDelegate(new RowDelegate(tree_));
  tree_->setAllColumnsShowFocus(true);
  tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tree_->header()->setSectionsMovable(false);
  watch(tree_->viewport());
  slowClick_.setSingleShot(true);
  slowClick_.setInterval(QApplication::doubleClickInterval());
  connect(tree_->header(), &QHeaderView::sectionClicked, this, [this](int column) {
    if (hasControl()) act([&](forms::User& user) { user.clickHeading(list_, column); });
  });
  connect(tree_->header(), &QHeaderView::sectionResized, this, [this](int column) {
    const bool byUser = QApplication::mouseButtons().testFlag(Qt::LeftButton);
    if (byUser && column + 1 < tree_->columnCount()) keepColumns();
  });
  connect(&slowClick_, &QTimer::timeout, this, [this] {
    if (hasControl() && list_.hasFocus()) {
      act([](forms::User& user) { user.press(forms::keys::f2); });
    }
  });
}

QWidget* ListViewAdapter::focusWidget() const {
  return editor_ ? static_cast<QWidget*>(editor_.data()) : tree_;
}

void ListViewAdapter::show() {
  showColumns();
  showRows();
  QTreeWidgetItem* selected = tree_->topLevelItem(list_.selectedRow());
  if (tree_->currentItem() != selected) {
    tree_->setCurrentItem(selected);
    if (selected) tree_->scrollToItem(selected);
  }
  if (!selected) tree_->clearSelection();
  showEditor();
}

void ListViewAdapter::showColumns() {
  QStringList headings;
  for (const std::string& heading : list_.columns()) headings << toQt(heading);
  if (tree_->columnCount() != headings.size()) {
    tree_->setColumnCount(std::max(1, static_cast<int>(headings.size())));
  }
  tree_->setHeaderLabels(headings);
  const bool isSorted = list_.sortedColumn() >= 0;
  tree_->header()->setSectionsClickable(isSorted);
  tree_->header()->setSortIndicatorShown(isSorted);
  if (isSorted) tree_->header()->setSortIndicator(list_.sortedColumn(), Qt::AscendingOrder);
  tree_->setHeaderHidden(!list_.showsHeadings() || headings.isEmpty());
}

void ListViewAdapter::showRows() {
  bool different = tree_->topLevelItemCount() != list_.rowCount();
  while (tree_->topLevelItemCount() > list_.rowCount()) {
    delete tree_->takeTopLevelItem(tree_->topLevelItemCount() - 1);
  }
  for (std::int32_t row = 0; row < list_.rowCount(); ++row) {
    if (row == tree_->topLevelItemCount()) tree_->addTopLevelItem(new QTreeWidgetItem);
    different |= showRow(*tree_->topLevelItem(row), row);
  }
  if (different) fitColumns();
  if (different || tree_->width() != fittedWidth_) fitLastColumn();
}

QString ListViewAdapter::keyInMemory() const {
  QStringList words{toQt(list_.form()->name()), toQt(list_.name())};
  for (const std::string& heading : list_.columns()) words << toQt(heading);
  return words.join(QLatin1Char('|'));
}

void ListViewAdapter::keepColumns() {
  if (!hasControl()) return;
  QList<int> widths;
  for (int column = 0; column + 1 < tree_->columnCount(); ++column) {
    widths << tree_->columnWidth(column);
  }
  form().session().memory.keepColumns(keyInMemory(), widths);
}

/// As wide as the user made them, or else as their texts; the last one is left out.
void ListViewAdapter::fitColumns() {
  const QList<int> kept = form().session().memory.columns(keyInMemory());
  for (int column = 0; column + 1 < tree_->columnCount(); ++column) {
    if (column < kept.size()) {
      tree_->setColumnWidth(column, kept[column]);
    } else {
      tree_->resizeColumnToContents(column);
    }
  }
}

/// The last column takes the room that is left, and can be scrolled to where that is not enough.
void ListViewAdapter::fitLastColumn() {
  fittedWidth_ = tree_->width();
  const int last = tree_->columnCount() - 1;
  const int needed = static_cast<QAbstractItemView*>(tree_)->sizeHintForColumn(last);
  const bool fits = needed <= tree_->viewport()->width() - tree_->header()->sectionPosition(last);
  tree_->header()->setStretchLastSection(fits);
  if (!fits) tree_->header()->resizeSection(last, needed);
  tree_->doItemsLayout();  // shows or hides the scroll bar at once
}

bool ListViewAdapter::showRow(QTreeWidgetItem& item, std::int32_t row) {
  bool different = false;
  for (int column = 0; column < tree_->columnCount(); ++column) {
    const bool filled = column < static_cast<int>(list_.columns().size()) || column == 0;
    const QString text = filled ? toQt(list_.text(row, column)) : QString();
    if (item.text(column) == text) continue;
    item.setText(column, text);
    different = true;
  }
  return different;
}

void ListViewAdapter::showEditor() {
  if (list_.isEditing() && !editor_) {
    openEditor();
  } else if (!list_.isEditing() && editor_) {
    editor_->hide();
    editor_->deleteLater();
    editor_.clear();
  }
}

void ListViewAdapter::openEditor() {
  QTreeWidgetItem* item = tree_->topLevelItem(list_.selectedRow());
  QRect place = tree_->visualItemRect(item);
  place.setWidth(std::max(leastEditorWidth, tree_->columnWidth(0) - place.left()));
  editor_ = new QLineEdit(toQt(list_.editedText()), tree_->viewport());
  editor_->setGeometry(place);
  editor_->setAccessibleName(
      toQt(list_.columns().empty() ? list_.name() : list_.columns().front()));
  editor_->selectAll();
  watch(editor_);
  connect(editor_, &QLineEdit::textEdited, this, [this](const QString& text) {
    if (hasControl()) act([&](forms::User& user) { user.labelText(list_, fromQt(text)); });
  });
  editor_->show();
}

bool ListViewAdapter::mousePressed(QWidget& part, QMouseEvent& event) {
  slowClick_.stop();
  if (&part != tree_->viewport()) return !isEditor(part);
  const QModelIndex index = tree_->indexAt(event.position().toPoint());
  if (!index.isValid() || event.button() != Qt::LeftButton) {
    reach();
    return true;
  }
  const bool again = list_.hasFocus() && list_.selectedRow() == index.row() && index.column() == 0;
  act([&](forms::User& user) { user.select(list_, index.row()); });
  if (again && hasControl() && list_.isLabelEditable()) slowClick_.start();
  return true;
}

bool ListViewAdapter::doubleClicked(QWidget& part, QMouseEvent& event) {
  slowClick_.stop();
  if (&part != tree_->viewport()) return !isEditor(part);
  const int row = tree_->indexAt(event.position().toPoint()).row();
  if (row >= 0) act([&](forms::User& user) { user.doubleClick(list_, row); });
  return true;
}

ListViewAdapter::KeyUse ListViewAdapter::useOf(QKeyEvent& event) {
  if (editor_) return KeyUse::form;
  if (scrollSideways(event)) return KeyUse::nobody;
  const int rowHeight = std::max(1, tree_->sizeHintForRow(0));
  const std::int32_t row = keys_.placeFor(
      event, {list_.rowCount(), list_.selectedRow(), tree_->viewport()->height() / rowHeight,
              [this](std::int32_t i) { return toQt(list_.text(i, 0)); }});
  if (row < 0) return KeyUse::form;
  if (row != list_.selectedRow()) act([&](forms::User& user) { user.select(list_, row); });
  return KeyUse::nobody;
}

bool ListViewAdapter::scrollSideways(const QKeyEvent& event) {
  QScrollBar& bar = *tree_->horizontalScrollBar();
  const bool left = event.key() == Qt::Key_Left;
  if (bar.maximum() == 0 || (!left && event.key() != Qt::Key_Right)) return false;
  bar.triggerAction(left ? QScrollBar::SliderSingleStepSub : QScrollBar::SliderSingleStepAdd);
  return true;
}

/// An open editor edits by itself; what ends it is the form's.
bool ListViewAdapter::keyLeft(QKeyEvent&) { return !editor_; }

}  // namespace qt
