#pragma once

#include "forms/Control.h"

namespace forms {

/// A box for one line of text. Places in the text count characters from 0.
class TextBox : public Control {
 public:
  TextBox(Container& container, std::string name);

  Kind kind() const override { return Kind::textBox; }
  bool takesFocus() const override { return true; }
  std::string shownText() const override { return text_; }
  bool hasOpenEdit() const override { return hasFocus() && text_ != textAtFocus_; }

  const std::string& text() const { return text_; }
  /// Puts the whole text in, also one over the maximum length, and the caret in front. Raises
  /// `change` when it differs.
  void setText(const std::string& text);

  /// The number of characters that a user can get into the box; 0: any number.
  std::int32_t maxLength() const { return maxLength_; }
  void setMaxLength(std::int32_t length) { set(maxLength_, length); }

  bool isReadOnly() const { return readOnly_; }
  void setReadOnly(bool readOnly) { set(readOnly_, readOnly); }

  /// The caret, or the start of the selection, and the number of characters selected. What lies
  /// outside the text is held at its ends.
  std::int32_t selectionStart() const { return selectionStart_; }
  std::int32_t selectionLength() const { return selectionLength_; }
  void select(std::int32_t start, std::int32_t count);
  void selectAll() { select(0, 0x7FFFFFFF); }

  /// Whether all of the text is selected when the focus comes, in whatever way it comes.
  bool selectsAllOnFocus() const { return selectsAllOnFocus_; }
  void setSelectsAllOnFocus(bool selects) { set(selectsAllOnFocus_, selects); }

  /// The text is different, through the user or the program.
  Event<> change;
  /// A character is about to be typed.
  Event<KeyPress&> keyPress;

 private:
  friend class User;

  /// One character at the caret, through `keyPress`, in the place of the selection.
  void userType(char32_t character);
  /// The first line of a text in the place of the selection, as pasted: `keyPress` is not asked.
  /// What passes the maximum is left out.
  void userInsert(const std::string& text);
  /// The box as the user left it after any edit; what was put in is cut at the maximum.
  void userEdit(const std::string& text, std::int32_t caret);
  bool userKey(const KeyDown& key) override;

  bool replace(const std::string& text, std::int32_t caret);

  std::string text_;
  std::string textAtFocus_;  // when the focus came last
  std::int32_t maxLength_ = 0;
  bool readOnly_ = false;
  bool selectsAllOnFocus_ = false;
  std::int32_t selectionStart_ = 0;
  std::int32_t selectionLength_ = 0;
};

}  // namespace forms
