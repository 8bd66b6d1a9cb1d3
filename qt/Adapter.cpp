#include "qt/Adapter.h"

#include "forms/Container.h"
#include "forms/Guard.h"
#include "qt/Conversions.h"
#include "qt/Session.h"
#include "qt/ShownForm.h"

namespace qt {

Adapter::Adapter(forms::Control& control, const Place& place, QWidget* widget)
    : control_(&control), form_(place.form), widget_(widget) {
  widget->setFocusPolicy(control.takesFocus() ? Qt::TabFocus : Qt::NoFocus);
  widget->setObjectName(toQt(control.name()));
  watch(widget);
  control.attach(this);
}

Adapter::~Adapter() { release(); }

void Adapter::release() {
  if (control_) control_->attach(nullptr);
  control_ = nullptr;
}

void Adapter::update() { form_.note(*this); }

void Adapter::detach() {
  const forms::Control* gone = control_;
  control_ = nullptr;
  form_.forget(*gone);
}

void Adapter::refresh() {
  if (!control_ || !widget_) return;
  const forms::Guard guard(showing_);
  widget_->setGeometry(pixels(control_->bounds()));
  widget_->setFont(toQt(control_->font()));
  const QPalette palette = paletteOf(*control_);
  if (widget_->palette() != palette) widget_->setPalette(palette);
  widget_->setToolTip(toolTipToQt(control_->toolTip()));
  widget_->setFocusPolicy(control_->takesFocus() ? Qt::TabFocus : Qt::NoFocus);
  nameForReaders();
  show();
  widget_->setEnabled(control_->isEnabled());
  widget_->setVisible(control_->isVisible() && control_->container().shows(*control_));
}

void Adapter::nameForReaders() { widget_->setAccessibleName(toQt(control_->nameForReaders())); }

void Adapter::watch(QWidget* part) { part->installEventFilter(this); }

void Adapter::act(const std::function<void(forms::User&)>& deed) {
  form_.note(*this);
  form_.act(deed);
}

Adapter::Reached Adapter::reachBy(const std::function<void(forms::User&)>& deed) {
  const int before = form_.session().interruptions;
  act(deed);
  if (!control_ || !control_->hasFocus()) return Reached::notAtAll;
  return form_.session().interruptions == before ? Reached::smoothly : Reached::interrupted;
}

Adapter::Reached Adapter::reach() {
  return reachBy([this](forms::User& user) { user.moveFocus(*control_); });
}

bool Adapter::eventFilter(QObject* watched, QEvent* event) {
  if (!control_) return false;
  auto& part = *static_cast<QWidget*>(watched);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      event->accept();
      return true;
    case QEvent::KeyPress:
      return keyPressed(part, *static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
      return !control_->isUsable() || mousePressed(part, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonDblClick:
      return !control_->isUsable() || doubleClicked(part, *static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      return mouseReleased(part, *static_cast<QMouseEvent*>(event));
    case QEvent::Wheel:
      return wheelTurned();
    case QEvent::InputMethod:
      return composed(*static_cast<QInputMethodEvent*>(event));
    case QEvent::FocusIn:
      if (!control_->hasFocus()) form_.refreshLater();
      return false;
    default:
      return false;
  }
}

bool Adapter::keyPressed(QWidget& part, QKeyEvent& event) {
  if (part.window()->focusWidget() != &part) return true;  // what the widget inside had no use for
  const KeyUse use = useOf(event);
  if (use != KeyUse::form) return use == KeyUse::nobody;
  form_.note(*this);
  form_.press(event);
  return !control_ || !control_->hasFocus() || keyLeft(event);
}

bool Adapter::mousePressed(QWidget&, QMouseEvent&) { return true; }

bool Adapter::doubleClicked(QWidget& part, QMouseEvent& event) { return mousePressed(part, event); }

}  // namespace qt
