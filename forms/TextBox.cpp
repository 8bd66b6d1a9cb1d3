#include "forms/TextBox.h"

#include <algorithm>

#include "forms/Text.h"

namespace forms {
namespace {

std::size_t commonStart(const std::u32string& one, const std::u32string& other) {
  const auto [end, ignored] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  return static_cast<std::size_t>(end - one.begin());
}

}  // namespace

TextBox::TextBox(Container& container, std::string name) : Control(container, std::move(name)) {
  setBackColor(colors::windowBackground);
  gotFocus.connect([this] {
    textAtFocus_ = text_;
    if (selectsAllOnFocus_) selectAll();
  });
}

void TextBox::setText(const std::string& text) {
  if (text != text_) replace(text, 0);
}

void TextBox::select(std::int32_t start, std::int32_t count) {
  const std::int32_t size = length(text_);
  selectionStart_ = std::clamp(start, 0, size);
  selectionLength_ = std::clamp(count, 0, size - selectionStart_);
  changed();
}

void TextBox::userType(char32_t character) {
  if (readOnly_) return;
  KeyPress press{character};
  keyPress.raise(press);
  if (press.character != 0) userInsert(fromCodePoints({&press.character, 1}));
}

void TextBox::userInsert(const std::string& inserted) {
  if (readOnly_) return;
  const std::string line = inserted.substr(0, inserted.find_first_of("\r\n"));
  std::u32string text = toCodePoints(text_);
  text.replace(static_cast<std::size_t>(selectionStart_),
               static_cast<std::size_t>(selectionLength_), toCodePoints(line));
  userEdit(fromCodePoints(text), selectionStart_ + length(line));
}

void TextBox::userEdit(const std::string& text, std::int32_t caret) {
  if (readOnly_) return changed();
  std::u32string after = toCodePoints(text);
  const std::u32string before = toCodePoints(text_);
  const auto limit = static_cast<std::size_t>(std::max(maxLength_, 0));
  if (limit > 0 && after.size() > limit && after.size() > before.size()) {
    const std::size_t inserted = after.size() - before.size();
    const std::size_t surplus = std::min(inserted, after.size() - limit);
    // What was put in ends at the caret and begins no earlier than the texts differ.
    const auto end = std::max(static_cast<std::size_t>(std::max(caret, 0)),
                              commonStart(before, after) + surplus);
    const std::size_t from = std::min(end, after.size()) - surplus;
    after.erase(from, surplus);
    caret = static_cast<std::int32_t>(from);
  }
  if (!replace(fromCodePoints(after), caret)) changed();
}

bool TextBox::userKey(const KeyDown& key) {
  if (readOnly_ || (key.code != keys::backspace && key.code != keys::del)) return false;
  if (selectionLength_ == 0) {
    if (key.code == keys::backspace) {
      if (selectionStart_ == 0) return true;
      --selectionStart_;
    }
    selectionLength_ = std::min(1, length(text_) - selectionStart_);
  }
  userInsert({});
  return true;
}

/// False when the text is the same, and then only the caret has moved.
bool TextBox::replace(const std::string& text, std::int32_t caret) {
  const bool differs = text != text_;
  text_ = text;
  select(caret, 0);
  if (differs) change.raise();
  return differs;
}

}  // namespace forms
