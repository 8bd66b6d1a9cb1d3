#include "qt/ToolBarAdapter.h"

#include <QtWidgets/QToolButton>

#include "qt/Conversions.h"
#include "qt/Pictures.h"

namespace qt {
namespace {

constexpr int pictureMargin = 4;
constexpr int arrowWidth = 14;

}  // namespace

ToolBarAdapter::ToolBarAdapter(forms::ToolBar& toolBar, const Place& place)
    : ClickedAdapter(toolBar, place, new QToolButton(&place.parent)),
      toolBar_(toolBar),
      button_(static_cast<QToolButton*>(widget())) {
  button_->setToolButtonStyle(Qt::ToolButtonIconOnly);
}

void ToolBarAdapter::show() {
  if (!(shown_ == toolBar_.menu())) showMenu();
  const bool hasMenu = !shown_.empty();
  button_->setMenu(hasMenu ? &menu_ : nullptr);
  button_->setPopupMode(hasMenu ? QToolButton::MenuButtonPopup : QToolButton::DelayedPopup);
  const QSize room =
      button_->size() - QSize(2 * pictureMargin + (hasMenu ? arrowWidth : 0), 2 * pictureMargin);
  button_->setIconSize(room);
  button_->setIcon(iconOf(toolBar_.picture(), room, button_->devicePixelRatioF()));
}

void ToolBarAdapter::showMenu() {
  shown_ = toolBar_.menu();
  menu_.clear();
  for (const forms::MenuEntry& entry : shown_) {
    QAction* action = menu_.addAction(toQt(entry.text));
    action->setEnabled(entry.enabled);
    connect(action, &QAction::triggered, this, [this, tag = entry.tag] {
      if (hasControl()) act([&](forms::User& user) { user.choose(toolBar_, tag); });
    });
  }
}

ToolBarAdapter::KeyUse ToolBarAdapter::useOf(QKeyEvent& event) {
  const bool opens = event.key() == Qt::Key_Down || event.key() == Qt::Key_F4;
  if (!opens || shown_.empty()) return ClickedAdapter::useOf(event);
  button_->showMenu();
  return KeyUse::nobody;
}

}  // namespace qt
