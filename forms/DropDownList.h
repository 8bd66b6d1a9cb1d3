#pragma once

#include <vector>

#include "forms/Control.h"
#include "forms/ImageList.h"

namespace forms {

/// A list that drops down, with a picture beside each text. Places count from 0; -1 is none.
class DropDownList : public Control {
 public:
  DropDownList(Container& container, std::string name) : Control(container, std::move(name)) {
    setBackColor(colors::windowBackground);
  }

  Kind kind() const override { return Kind::dropDownList; }
  bool takesFocus() const override { return true; }
  std::string shownText() const override;

  /// The pictures that items are shown with; null: none. The list is not owned and stays as long as
  /// the control.
  const ImageList* images() const { return images_; }
  void setImages(const ImageList* images) { set(images_, images); }

  /// Adds an item at the end; `picture` is a number of `images`, 0 for none.
  void add(const std::string& text, std::int16_t picture = 0);
  void clear();
  std::int32_t count() const { return static_cast<std::int32_t>(items_.size()); }
  /// Raise Error 9 for a place that the list does not have.
  const std::string& text(std::int32_t place) const { return item(place).text; }
  std::int16_t picture(std::int32_t place) const { return item(place).picture; }
  void setText(std::int32_t place, const std::string& text);
  /// The place of the first item with exactly this text; -1 when there is none.
  std::int32_t find(const std::string& text) const;

  std::int32_t selected() const { return selected_; }
  /// Raises `click` when the selection changes. -1 selects nothing. Raises Error 9 for another
  /// place outside.
  void setSelected(std::int32_t place);

  /// Another item is selected, through the user or the program.
  Event<> click;

 private:
  friend class User;
  struct Item {
    std::string text;
    std::int16_t picture;
  };
  const Item& item(std::int32_t place) const;
  void userSelect(std::int32_t place) { setSelected(place); }
  bool userKey(const KeyDown& key) override;

  const ImageList* images_ = nullptr;
  std::vector<Item> items_;
  std::int32_t selected_ = -1;
};

}  // namespace forms
