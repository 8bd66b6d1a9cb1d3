#include "forms/Control.h"

#include <algorithm>

#include "forms/Container.h"
#include "forms/Form.h"
#include "forms/Root.h"
#include "forms/Text.h"

namespace forms {

std::string toText(Kind kind) {
  switch (kind) {
    case Kind::label:
      return "label";
    case Kind::textBox:
      return "text box";
    case Kind::checkBox:
      return "check box";
    case Kind::optionButton:
      return "option button";
    case Kind::commandButton:
      return "button";
    case Kind::frame:
      return "frame";
    case Kind::line:
      return "line";
    case Kind::image:
      return "image";
    case Kind::listBox:
      return "list box";
    case Kind::dropDownList:
      return "drop-down list";
    case Kind::listView:
      return "list view";
    case Kind::textView:
      return "text view";
    case Kind::progressBar:
      return "progress bar";
    case Kind::toolBar:
      return "toolbar";
    case Kind::tabStrip:
      return "tab strip";
    case Kind::userControl:
      return "user control";
  }
  return {};
}

Control::Control(Container& container, std::string name)
    : name_(std::move(name)), container_(&container), root_(&container.contentRoot()) {
  root_->enter(*this);
  container_->adopt(*this);
}

Control::~Control() {
  root_->leave(*this);
  container_->release(*this);
  if (view_) view_->detach();
}

Form* Control::form() const { return root_->ownerForm(); }

void Control::setContainer(Container& container) {
  const Container* inside = asContainer();
  const Control* holder = container.asControl();
  if (&container.contentRoot() != root_ || holder == this ||
      (inside && holder && inside->contains(*holder))) {
    throw Error(errors::invalidCall, "\"" + name_ + "\" can't be moved into that container.");
  }
  container_->release(*this);
  container_ = &container;
  container_->adopt(*this);
  if (FormView* view = root_->formView()) view->childAdded(*this);
  changed();
}

void Control::setVisible(bool visible) { set(visible_, visible); }

void Control::setEnabled(bool enabled) { set(enabled_, enabled); }

void Control::setTabStop(bool tabStop) { set(tabStop_, tabStop); }

void Control::setBounds(const Rect& bounds) {
  const Rect before = bounds_;
  if (set(bounds_, bounds)) boundsChanged(before);
}

bool Control::isShown() const {
  if (!visible_ || !container_->shows(*this)) return false;
  const Control* holder = container_->asControl();
  return !holder || holder->isShown();
}

bool Control::isUsable() const {
  if (!enabled_ || !visible_ || !container_->shows(*this)) return false;
  const Control* holder = container_->asControl();
  return !holder || holder->isUsable();
}

bool Control::hasFocus() const {
  Form* owner = form();
  return owner && owner->focus().control() == this;
}

void Control::setFocus() {
  Form* owner = form();
  if (!owner) throw Error(errors::invalidCall, "\"" + name_ + "\" stands on no form.");
  owner->focus().moveByProgram(*this);
}

void Control::nameBy(const Control& words) {
  if (std::find(namedBy_.begin(), namedBy_.end(), &words) != namedBy_.end()) return;
  namedBy_.push_back(&words);
  changed();
}

std::string Control::wordsOfOthers() const {
  std::string all;
  for (const Control* words : namedBy_) {
    const std::string text = words->isVisible() ? words->shownText() : "";
    if (!text.empty()) all += (all.empty() ? "" : " ") + text;
  }
  return withSingleBlanks(all);
}

std::string Control::nameForReaders() const {
  if (!accessibleName_.empty()) return accessibleName_;
  if (const std::string words = wordsOfOthers(); !words.empty()) return words;
  if (const std::string words = withSingleBlanks(ownWords()); !words.empty()) return words;
  const Control* holder = container_->asControl();
  const bool fillsComposed = takesFocus() && holder && holder->kind() == Kind::userControl;
  const std::string words = fillsComposed ? holder->wordsOfOthers() : "";
  return words.empty() ? toolTip_ : words;
}

std::string withoutAccelerator(const std::string& caption) {
  std::string text;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && ++i == caption.size()) break;
    text.push_back(caption[i]);
  }
  return text;
}

std::string Captioned::shownText() const { return withoutAccelerator(caption_); }

char32_t Captioned::accelerator() const {
  const std::u32string text = toCodePoints(caption_);
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != U'&') continue;
    if (text[i + 1] != U'&') return lowerCase(text[i + 1]);
    ++i;
  }
  return 0;
}

}  // namespace forms
