#pragma once

#include <vector>

#include "forms/Control.h"

namespace forms {

/// A list of texts of which one can be selected. Places count from 0; -1 is none.
class ListBox : public Control {
 public:
  ListBox(Container& container, std::string name) : Control(container, std::move(name)) {
    setBackColor(colors::windowBackground);
  }

  Kind kind() const override { return Kind::listBox; }
  bool takesFocus() const override { return true; }
  std::string shownText() const override;

  /// Adds an item at the end, with a number for the program.
  void add(const std::string& text, std::int32_t data = 0);
  /// Empties the list; nothing is selected then, and no event is raised.
  void clear();
  std::int32_t count() const { return static_cast<std::int32_t>(items_.size()); }
  /// Raise Error 9 for a place that the list does not have.
  const std::string& text(std::int32_t place) const { return item(place).text; }
  std::int32_t data(std::int32_t place) const { return item(place).data; }

  std::int32_t selected() const { return selected_; }
  /// Raises `click` when the selection changes. -1 selects nothing. Raises Error 9 for another
  /// place outside.
  void setSelected(std::int32_t place);

  /// An item was selected, by the user or the program; a user's click on the selected one raises it
  /// again.
  Event<> click;
  Event<> doubleClick;

 private:
  friend class User;
  struct Item {
    std::string text;
    std::int32_t data;
  };
  const Item& item(std::int32_t place) const;
  void userSelect(std::int32_t place);
  void userDoubleClick(std::int32_t place);
  bool userKey(const KeyDown& key) override;

  std::vector<Item> items_;
  std::int32_t selected_ = -1;
};

}  // namespace forms
