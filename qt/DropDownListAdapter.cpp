#include "qt/DropDownListAdapter.h"

#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

#include "qt/Conversions.h"
#include "qt/Pictures.h"

namespace qt {
namespace {

constexpr int itemsInSight = 12;
constexpr int pictureSize = 16;
constexpr int roomForScrollBar = 30;
constexpr int pictureRole = Qt::UserRole;

}  // namespace

DropDownListAdapter::DropDownListAdapter(forms::DropDownList& list, const Place& place)
    : Adapter(list, place, new QComboBox(&place.parent)),
      list_(list),
      box_(static_cast<QComboBox*>(widget())) {
  box_->setMaxVisibleItems(itemsInSight);
  box_->setIconSize({pictureSize, pictureSize});
  connect(box_, &QComboBox::activated, this, [this](int place_) { select(place_); });
}

void DropDownListAdapter::show() {
  showItems();
  if (box_->currentIndex() != list_.selected()) box_->setCurrentIndex(list_.selected());
}

void DropDownListAdapter::showItems() {
  while (box_->count() > list_.count()) box_->removeItem(box_->count() - 1);
  bool different = false;
  for (std::int32_t i = 0; i < list_.count(); ++i) {
    const QString text = toQt(list_.text(i));
    if (i == box_->count()) box_->addItem({});
    const bool sameText = box_->itemText(i) == text;
    if (sameText && box_->itemData(i, pictureRole) == QVariant(list_.picture(i))) continue;
    different = true;
    box_->setItemText(i, text);
    box_->setItemData(i, QVariant(list_.picture(i)), pictureRole);
    const forms::ImageList* images = list_.images();
    const bool pictured = images && list_.picture(i) > 0 && list_.picture(i) <= images->count();
    box_->setItemIcon(i, pictured ? iconOf(images->item(list_.picture(i)), box_->iconSize(),
                                           box_->devicePixelRatioF())
                                  : QIcon());
  }
  if (different) {
    box_->view()->setMinimumWidth(box_->view()->sizeHintForColumn(0) + roomForScrollBar);
  }
}

void DropDownListAdapter::select(std::int32_t place) {
  if (isShowing() || !hasControl() || place < 0 || place >= list_.count()) return;
  act([&](forms::User& user) { user.select(list_, place); });
}

bool DropDownListAdapter::mousePressed(QWidget&, QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return true;
  const Reached reached = reach();
  if (reached == Reached::interrupted) box_->showPopup();
  return reached != Reached::smoothly;
}

DropDownListAdapter::KeyUse DropDownListAdapter::useOf(QKeyEvent& event) {
  const bool upOrDown = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  if (event.key() == Qt::Key_F4 || (upOrDown && event.modifiers().testFlag(Qt::AltModifier))) {
    box_->showPopup();
    return KeyUse::nobody;
  }
  const std::int32_t place =
      keys_.placeFor(event, {list_.count(), list_.selected(), itemsInSight,
                             [this](std::int32_t i) { return toQt(list_.text(i)); }});
  if (place < 0) return KeyUse::form;
  if (place != list_.selected()) select(place);
  return KeyUse::nobody;
}

}  // namespace qt
