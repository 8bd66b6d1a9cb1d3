#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Control.h"

namespace forms {

/// Rows with columns, of which one row can be selected and the text of the first column edited in
/// place. Rows and columns count from 0; row -1 is none.
class ListView : public Control {
 public:
  ListView(Container& container, std::string name) : Control(container, std::move(name)) {
    setBackColor(colors::windowBackground);
  }

  Kind kind() const override { return Kind::listView; }
  bool takesFocus() const override { return true; }
  std::string shownText() const override;

  /// Rows that are there get the columns that they lack, empty.
  void setColumns(const std::vector<std::string>& headings);
  const std::vector<std::string>& columns() const { return columns_; }
  bool showsHeadings() const { return headings_; }
  void setShowsHeadings(bool shows) { set(headings_, shows); }
  /// The column whose heading is marked as the one that the rows are sorted by; -1: none is. It is
  /// the program that sorts them.
  std::int32_t sortedColumn() const { return sortedColumn_; }
  void setSortedColumn(std::int32_t column) { set(sortedColumn_, column); }
  bool isLabelEditable() const { return labelEditable_; }
  void setLabelEditable(bool editable) { labelEditable_ = editable; }

  /// Adds a row at the end and answers its number. Missing columns are empty.
  std::int32_t addRow(const std::vector<std::string>& texts, std::int32_t data = 0);
  /// A row for each number, in the place of all that there are. Their texts are asked for when they
  /// are looked at, with the number and the column, and can't be set.
  using TextOf = std::function<std::string(std::int32_t data, std::int32_t column)>;
  void setRows(const std::vector<std::int32_t>& data, TextOf textOf);
  /// Where the selected row is removed, the one that takes its place is selected, or the new last
  /// one. Like `clear`, it gives up a label edit and raises nothing.
  void removeRow(std::int32_t row);
  void clear();
  std::int32_t rowCount() const { return static_cast<std::int32_t>(rows_.size()); }
  /// Raise Error 9 for a row or column that there is not.
  std::string text(std::int32_t row, std::int32_t column) const;
  void setText(std::int32_t row, std::int32_t column, const std::string& text);
  std::int32_t data(std::int32_t row) const { return rowAt(row).data; }

  std::int32_t selectedRow() const { return selected_; }
  /// Raises `itemClick` when another row becomes selected.
  void setSelectedRow(std::int32_t row);

  bool isEditing() const { return editing_; }
  bool hasOpenEdit() const override { return editing_ && editedText_ != text(selected_, 0); }
  /// What stands in the open editor.
  const std::string& editedText() const { return editedText_; }
  /// Opens the editor of the selected row's label, also where a user can't. Nothing happens without
  /// a selected row.
  void startLabelEdit();

  Event<> itemClick;
  Event<> doubleClick;
  Event<std::int32_t> headingClick;
  /// A label edit is about to open; True keeps it from opening.
  Event<bool&> beforeLabelEdit;
  /// A label edit ends; True in the first argument keeps the old label. The text may be changed.
  Event<bool&, std::string&> afterLabelEdit;

 private:
  friend class User;
  struct Row {
    std::vector<std::string> texts;  // of a row that was added
    std::int32_t data;
  };
  const Row& rowAt(std::int32_t row) const;
  std::int32_t columnCount(std::int32_t row) const;
  void requireColumn(std::int32_t row, std::int32_t column) const;

  void userSelect(std::int32_t row);
  void userDoubleClick(std::int32_t row);
  void userEditLabel(const std::string& text) { editedText_ = text; }
  void userEndLabelEdit(bool accept);
  bool userKey(const KeyDown& key) override;
  void endEditing() override { userEndLabelEdit(true); }

  std::vector<std::string> columns_;
  std::vector<Row> rows_;
  TextOf textOf_;  // of rows that were not added one by one
  std::int32_t selected_ = -1;
  std::int32_t sortedColumn_ = -1;
  bool headings_ = true;
  bool labelEditable_ = false;
  bool editing_ = false;
  std::string editedText_;
};

}  // namespace forms
