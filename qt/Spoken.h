#pragma once

#include <QtGui/QAccessible>

class QMenu;

namespace qt {

/// A widget that is to screen readers something else than its class is in Qt.
class Spoken {
 public:
  virtual ~Spoken() = default;

  virtual QAccessible::Role role() const = 0;
  /// Beyond what every widget tells: whether it is checked and can be.
  virtual void describe(QAccessible::State&) const {}
  /// What a screen reader's "press" does.
  virtual void press() = 0;
  /// What opens at its side; null where nothing does.
  virtual QMenu* sideMenu() const { return nullptr; }
  virtual void openSideMenu() {}
};

/// From now on screen readers are told what is spoken as the widgets say.
void installSpoken();

}  // namespace qt
