#include "qt/ListBoxAdapter.h"

#include <QtWidgets/QListWidget>
#include <algorithm>

#include "qt/Conversions.h"
#include "qt/RowDelegate.h"

namespace qt {

ListBoxAdapter::ListBoxAdapter(forms::ListBox& list, const Place& place)
    : Adapter(list, place, new QListWidget(&place.parent)),
      list_(list),
      widget_(static_cast<QListWidget*>(widget())) {
  widget_->setUniformItemSizes(true);
  widget_->setItemDelegate(new RowDelegate(widget_));
  widget_->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  watch(widget_->viewport());
}

void ListBoxAdapter::show() {
  showItems();
  if (widget_->currentRow() == list_.selected()) return;
  widget_->setCurrentRow(list_.selected());
  if (list_.selected() < 0) widget_->clearSelection();
}

void ListBoxAdapter::showItems() {
  while (widget_->count() > list_.count()) delete widget_->takeItem(widget_->count() - 1);
  for (std::int32_t i = 0; i < list_.count(); ++i) {
    const QString text = toQt(list_.text(i));
    if (i == widget_->count()) {
      widget_->addItem(text);
    } else if (widget_->item(i)->text() != text) {
      widget_->item(i)->setText(text);
    }
  }
}

std::int32_t ListBoxAdapter::placeAt(const QMouseEvent& event) const {
  return widget_->indexAt(event.position().toPoint()).row();
}

bool ListBoxAdapter::mousePressed(QWidget& part, QMouseEvent& event) {
  if (&part != widget_->viewport()) return false;
  const std::int32_t place = placeAt(event);
  if (place < 0 || event.button() != Qt::LeftButton) {
    reach();
  } else {
    act([&](forms::User& user) { user.select(list_, place); });
  }
  return true;
}

bool ListBoxAdapter::doubleClicked(QWidget& part, QMouseEvent& event) {
  const std::int32_t place = placeAt(event);
  if (&part != widget_->viewport() || place < 0 || event.button() != Qt::LeftButton) return true;
  act([&](forms::User& user) { user.doubleClick(list_, place); });
  return true;
}

ListBoxAdapter::KeyUse ListBoxAdapter::useOf(QKeyEvent& event) {
  const int rowHeight = std::max(1, widget_->sizeHintForRow(0));
  const std::int32_t place = keys_.placeFor(
      event, {list_.count(), list_.selected(), widget_->viewport()->height() / rowHeight,
              [this](std::int32_t i) { return toQt(list_.text(i)); }});
  if (place < 0) return KeyUse::form;
  if (place != list_.selected()) act([&](forms::User& user) { user.select(list_, place); });
  return KeyUse::nobody;
}

}  // namespace qt
