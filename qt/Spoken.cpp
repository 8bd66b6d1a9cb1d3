#include "qt/Spoken.h"

#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QWidget>

namespace qt {
namespace {

class SpokenWidget : public QAccessibleWidget {
 public:
  SpokenWidget(QWidget& widget, Spoken& spoken)
      : QAccessibleWidget(&widget, spoken.role()), spoken_(spoken) {}

  QAccessible::Role role() const override { return spoken_.role(); }

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    spoken_.describe(state);
    return state;
  }

  int childCount() const override {
    return spoken_.sideMenu() ? 1 : QAccessibleWidget::childCount();
  }

  QAccessibleInterface* child(int place) const override {
    if (!spoken_.sideMenu()) return QAccessibleWidget::child(place);
    return place == 0 ? QAccessible::queryAccessibleInterface(spoken_.sideMenu()) : nullptr;
  }

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (!widget()->isEnabled()) return names;
    if (spoken_.sideMenu()) names.prepend(showMenuAction());
    names.prepend(pressAction());
    return names;
  }

  void doAction(const QString& action) override {
    if (action == pressAction()) return later(&Spoken::press);
    if (action == showMenuAction()) return later(&Spoken::openSideMenu);
    QAccessibleWidget::doAction(action);
  }

 private:
  /// Since it may open a window and the screen reader waits for the answer.
  void later(void (Spoken::*act)()) {
    QMetaObject::invokeMethod(
        widget(), [&spoken = spoken_, act] { (spoken.*act)(); }, Qt::QueuedConnection);
  }

  Spoken& spoken_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
  auto* spoken = dynamic_cast<Spoken*>(object);
  auto* widget = qobject_cast<QWidget*>(object);
  return spoken && widget ? new SpokenWidget(*widget, *spoken) : nullptr;
}

}  // namespace

void installSpoken() { QAccessible::installFactory(interfaceOf); }

}  // namespace qt
