#include "qt/ShownForm.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <algorithm>

#include "forms/Application.h"
#include "forms/Guard.h"
#include "qt/Adapter.h"
#include "qt/AdapterFactory.h"
#include "qt/Conversions.h"
#include "qt/Keyboard.h"
#include "qt/Session.h"
#include "qt/TabStripAdapter.h"

namespace qt {
namespace {

Qt::WindowFlags windowFlags(const forms::Form& form, bool owned) {
  Qt::WindowFlags flags =
      Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  flags |= owned ? Qt::Dialog : Qt::Window;
  if (!owned) flags |= Qt::WindowMinimizeButtonHint;
  if (form.isSizeable()) flags |= Qt::WindowMaximizeButtonHint;
  return flags;
}

forms::Size frameOf(const forms::Form& form) {
  const forms::Size inner = form.innerSize();
  return {form.size().width - inner.width, form.size().height - inner.height};
}

std::int32_t handleOf(const QWidget& window) {
  const auto handle = static_cast<std::int32_t>(window.winId() & 0x7FFFFFFF);
  return handle == 0 ? 1 : handle;
}

}  // namespace

ShownForm::ShownForm(forms::Form& form, QWidget* owner, Session& session)
    : form_(&form), session_(session), window_(*this, owner) {
  window_.setWindowFlags(windowFlags(form, owner != nullptr));
  if (owner) window_.setWindowModality(Qt::ApplicationModal);
  session_.shown.push_back(this);
  form.attach(this);
}

ShownForm::~ShownForm() {
  for (const auto& [control, adapter] : adapters_) adapter->release();
  if (form_) {
    form_->setWindowHandle(0);
    form_->attach(nullptr);
  }
  std::erase(session_.shown, this);
  if (QWidget* below = session_.top()) below->activateWindow();
}

void ShownForm::run() {
  restorePlace();
  addMissing(*form_);
  update();
  refresh();
  window_.show();
  form_->setWindowHandle(handleOf(window_));
  form_->activateNow();
  if (session_.formShown) session_.formShown();
  refresh();
  if (form_ && form_->isVisible()) loop_.exec();
}

/// As the user left it, on a screen that there is now.
void ShownForm::restorePlace() {
  const WindowMemory::Place place = session_.memory.place(toQt(form_->name()));
  if (place.size.width <= 0) return;
  if (form_->isSizeable()) form_->setSize(place.size);
  const QScreen* screen = QGuiApplication::screenAt(place.corner);
  if (!screen) screen = QGuiApplication::primaryScreen();
  const QRect window(place.corner, pixels(form_->innerSize()) + roomForFrame);
  window_.move(clamped(window, screen->availableGeometry()).topLeft());
}

void ShownForm::keepPlace() {
  if (!form_ || window_.isMaximized()) return;
  session_.memory.keepPlace(toQt(form_->name()), {window_.pos(), form_->size()});
}

void ShownForm::act(const std::function<void(forms::User&)>& deed) {
  ++acts_;
  try {
    forms::User user(forms::Application::current());
    deed(user);
  } catch (const forms::Refused&) {  // the control went out of reach in the meantime
  } catch (const forms::Error& error) {
    forms::reportHandlerError(error);
  }
  --acts_;
  refresh();
}

void ShownForm::press(const QKeyEvent& event) {
  if (turnPage(event)) return;
  const FormsKey key = formsKey(event);
  const bool hasAlt = event.modifiers().testFlag(Qt::AltModifier);
  if (key.code == 0 || (hasAlt && !isAccelerator(event))) return;
  act([&](forms::User& user) { user.press(key.code, key.shift); });
  if (key.code == forms::keys::f1) helpOnFocus();
}

/// Control with Tab or with Page Up and Down turns the pages of a strip whose headers are in sight.
bool ShownForm::turnPage(const QKeyEvent& event) {
  if (!form_ || !event.modifiers().testFlag(Qt::ControlModifier)) return false;
  const int key = event.key();
  const bool forward = key == Qt::Key_Tab || key == Qt::Key_PageDown;
  if (!forward && key != Qt::Key_Backtab && key != Qt::Key_PageUp) return false;
  for (const auto& [control, adapter] : adapters_) {
    auto* strip = dynamic_cast<TabStripAdapter*>(adapter.get());
    if (strip && strip->turnPage(forward)) return true;
  }
  return false;
}

/// F1 shows the topic of the control with the focus, or of what holds it; a window without one has
/// that of the window below.
void ShownForm::helpOnFocus() {
  forms::Application& application = forms::Application::current();
  if (!form_ || application.activeForm() != form_ || application.helpFile().empty()) return;
  std::int16_t topic = 0;
  for (forms::Control* control = form_->focus().control(); control && topic == 0;) {
    topic = control->helpContext();
    control = control->container().asControl();
  }
  const auto& open = session_.shown;
  for (auto shown = open.rbegin(); shown != open.rend() && topic == 0; ++shown) {
    if ((*shown)->form_) topic = (*shown)->form_->helpContext();
  }
  application.desktop().showHelp(form_->windowHandle(), application.helpFile(), topic);
}

void ShownForm::close() {
  if (!form_ || !form_->isVisible()) return;
  act([this](forms::User& user) { user.close(*form_); });
}

void ShownForm::resized() {
  if (refreshing_ || !form_ || !form_->isSizeable() || !window_.isVisible()) return;
  const forms::Size frame = frameOf(*form_);
  const forms::Size least{form_->minimumSize().width - frame.width,
                          form_->minimumSize().height - frame.height};
  // A screen may be smaller than the form can be.
  const QSize wanted = window_.size().expandedTo(pixels(least));
  if (pixels(form_->innerSize()) == wanted) return;
  const forms::Size inner = twips(wanted);
  act([&](forms::User&) {
    form_->setSize({inner.width + frame.width, inner.height + frame.height});
  });
}

void ShownForm::refresh() {
  if (refreshing_ || !form_) return;
  const forms::Guard guard(refreshing_);
  addMissing(*form_);
  showForm();
  while (!noted_.empty()) {
    for (Adapter* adapter : std::exchange(noted_, {})) adapter->refresh();
  }
  showFocus();
}

void ShownForm::refreshLater() {
  if (refreshIsComing_) return;
  refreshIsComing_ = true;
  const auto refreshNow = [this] {
    refreshIsComing_ = false;
    settle();
    refresh();
  };
  QMetaObject::invokeMethod(&window_, refreshNow, Qt::QueuedConnection);
}

/// What the program did outside of an act may have hidden or disabled the control with the focus.
void ShownForm::settle() {
  const bool active = form_ && forms::Application::current().activeForm() == form_;
  if (active && acts_ == 0) form_->focus().settle();
}

void ShownForm::note(Adapter& adapter) {
  if (std::find(noted_.begin(), noted_.end(), &adapter) == noted_.end()) noted_.push_back(&adapter);
  if (!refreshing_) refreshLater();
}

void ShownForm::noteContents(const forms::Container& container) {
  for (const forms::Control* child : container.children()) {
    if (Adapter* adapter = adapterOf(child)) note(*adapter);
  }
}

void ShownForm::update() {
  if (!form_->isVisible()) {
    if (window_.isVisible()) keepPlace();
    window_.hide();
    loop_.quit();
  } else if (!refreshing_) {
    refreshLater();
  }
}

void ShownForm::detach() {
  form_ = nullptr;
  window_.hide();
  loop_.quit();
}

void ShownForm::childAdded(forms::Control&) { refreshLater(); }

void ShownForm::forget(const forms::Control& control) {
  const auto found = adapters_.find(&control);
  if (found == adapters_.end()) return;
  gone_.push_back(std::move(found->second));
  adapters_.erase(found);
  QWidget* widget = gone_.back()->widget();
  for (const auto& [other, adapter] : adapters_) {
    if (adapter->widget()->parentWidget() == gone_.back()->contents()) {
      adapter->widget()->setParent(&window_.contents());
      note(*adapter);
    }
  }
  widget->hide();
  widget->deleteLater();
  refreshLater();
}

Adapter* ShownForm::adapterOf(const forms::Control* control) const {
  const auto found = adapters_.find(control);
  return found == adapters_.end() ? nullptr : found->second.get();
}

QWidget& ShownForm::contentsOf(const forms::Container& container) {
  Adapter* adapter = adapterOf(const_cast<forms::Container&>(container).asControl());
  return adapter ? *adapter->contents() : window_.contents();
}

void ShownForm::addMissing(const forms::Container& container) {
  QWidget& parent = contentsOf(container);
  for (forms::Control* child : container.children()) {
    auto& adapter = adapters_[child];
    if (!adapter) {
      adapter = makeAdapter(*child, {*this, parent});
      note(*adapter);
    } else if (adapter->widget()->parentWidget() != &parent) {
      adapter->widget()->setParent(&parent);
      note(*adapter);
    }
    const forms::Container* inner = child->asContainer();
    // A page gets its widgets when it is shown.
    if (inner && child->isVisible() && container.shows(*child)) addMissing(*inner);
  }
}

void ShownForm::showForm() {
  const QSize inner = pixels(form_->innerSize());
  window_.setWindowTitle(toQt(form_->caption()));
  window_.setPicture(form_->picture());
  QPalette palette = window_.palette();
  palette.setColor(QPalette::Window, toQt(form_->backColor()));
  if (palette != window_.palette()) window_.setPalette(palette);
  if (!form_->isSizeable()) return window_.showFixed(inner);
  const forms::Size frame = frameOf(*form_);
  const forms::Size least = form_->minimumSize();
  const forms::Size leastInner{std::max(0, least.width - frame.width),
                               std::max(0, least.height - frame.height)};
  window_.showSizeable(inner, pixels(leastInner));
}

void ShownForm::showFocus() {
  Adapter* adapter = adapterOf(form_->focus().control());
  QWidget* target = adapter ? adapter->focusWidget() : &window_;
  if (adapter) adapter->nameForReaders();
  if (window_.focusWidget() != target) {
    target->setFocus(Qt::OtherFocusReason);
    if (adapter) window_.reveal(*target);
  }
  window_.setAttribute(Qt::WA_KeyboardFocusChange);  // so that the focus is seen, however it came
}

}  // namespace qt
