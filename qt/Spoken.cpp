#include "qt/Spoken.h"

#include <QtWidgets/QAccessibleWidget>
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

  QStringList actionNames() const override {
    QStringList names = QAccessibleWidget::actionNames();
    if (widget()->isEnabled()) names.prepend(pressAction());
    return names;
  }

  /// Later, since a press may open a window and the screen reader waits for the answer.
  void doAction(const QString& action) override {
    if (action != pressAction()) return QAccessibleWidget::doAction(action);
    QMetaObject::invokeMethod(
        widget(), [&spoken = spoken_] { spoken.press(); }, Qt::QueuedConnection);
  }

 private:
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
