#include "qt/ToolBarAdapter.h"

#include <QtWidgets/QToolButton>

#include "qt/Conversions.h"
#include "qt/Pictures.h"
#include "qt/Spoken.h"

namespace qt {
namespace {

constexpr int pictureMargin = 4;
constexpr int arrowWidth = 14;

/// To screen readers one button that is pressed and has a menu; Qt's own tells them of the menu
/// alone.
class MenuButton : public QToolButton, public Spoken {
 public:
  using QToolButton::QToolButton;

  QAccessible::Role role() const override {
    return menu() ? QAccessible::ButtonMenu : QAccessible::Button;
  }
  void press() override { click(); }
  QMenu* sideMenu() const override { return menu(); }
  void openSideMenu() override { showMenu(); }
};

}  // namespace

ToolBarAdapter::ToolBarAdapter(forms::ToolBar& toolBar, const Place& place)
    : ClickedAdapter(toolBar, place, new MenuButton(&place.parent)),
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
    // Later, since it may open a window and a screen reader waits for the answer.
    connect(
        action, &QAction::triggered, this,
        [this, tag = entry.tag] {
          if (hasControl()) act([&](forms::User& user) { user.choose(toolBar_, tag); });
        },
        Qt::QueuedConnection);
  }
}

ToolBarAdapter::KeyUse ToolBarAdapter::useOf(QKeyEvent& event) {
  const bool opens = event.key() == Qt::Key_Down || event.key() == Qt::Key_F4;
  if (!opens || shown_.empty()) return ClickedAdapter::useOf(event);
  button_->showMenu();
  return KeyUse::nobody;
}

}  // namespace qt
