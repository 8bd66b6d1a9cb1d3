#include "forms/Form.h"

#include "forms/Application.h"
#include "forms/Guard.h"

namespace forms {
namespace {

/// What border and title take of the outer size, in twips.
constexpr Size frameSize{120, 405};

constexpr std::int32_t alreadyShown = 400;

}  // namespace

Form::Form(std::string name) : name_(std::move(name)) {}

Form::~Form() {
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
  visible_ = true;
  load();
  if (visible_) Application::current().runModal(*this, owner);
  visible_ = false;
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
  if (!visible_ || activating_) return;
  const Guard guard(activating_);
  focus_.settle();
  activated.raise();
  focus_.settle();
}

void Form::changed() {
  if (view_) view_->update();
}

}  // namespace forms
