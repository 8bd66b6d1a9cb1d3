#include "forms/Form.h"

#include "forms/Application.h"
#include "forms/Guard.h"
#include "forms/UserControl.h"

namespace forms {
namespace {

/// What border and title take of the outer size, in twips.
constexpr Size frameSize{75, 405};

constexpr std::int32_t alreadyShown = 400;

void raisePainted(const Container& container) {
  for (Control* child : container.children()) {
    if (auto* control = dynamic_cast<UserControl*>(child)) control->painted.raise();
    if (const Container* inner = child->asContainer()) raisePainted(*inner);
  }
}

}  // namespace

Form::Form(std::string name) : name_(std::move(name)) {}

Form::~Form() {
  endCreated();  // before the view that draws them
  if (view_) view_->detach();
}

void Form::setCaption(const std::string& caption) {
  caption_ = caption;
  changed();
}

void Form::setSize(Size size) {
  if (size_ == size) return;
  size_ = size;
  changed();
  resized.raise();
}

Size Form::innerSize() const {
  return {size_.width - frameSize.width, size_.height - frameSize.height};
}

void Form::setBackColor(Color color) {
  backColor_ = color;
  changed();
}

void Form::setPicture(const Picture& picture) {
  picture_ = picture;
  changed();
}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  loading.raise();
}

void Form::showModal(Form* owner) {
  if (visible_) throw Error(alreadyShown, "The window \"" + caption_ + "\" is shown already.");
  const Guard shown(visible_);
  load();
  raisePainted(*this);
  if (visible_) Application::current().runModal(*this, owner);
}

void Form::hide() {
  visible_ = false;
  changed();
}

bool Form::unload(UnloadMode mode) {
  if (!loaded_ || unloading_) return true;
  const Guard guard(unloading_);
  bool cancel = false;
  queryUnload.raise(cancel, mode);
  if (cancel) return false;
  hide();
  unloading.raise();
  loaded_ = false;
  return true;
}

void Form::activateNow() {
  focus_.settle();
  activate();
  focus_.settle();
}

void Form::activate() {
  if (!visible_ || activating_) return;
  const Guard guard(activating_);
  activated.raise();
}

void Form::changed() {
  if (view_) view_->update();
}

}  // namespace forms
