#include "forms/ListView.h"

#include <algorithm>

namespace forms {

std::string ListView::shownText() const {
  std::string all;
  for (std::int32_t row = 0; row < rowCount(); ++row) {
    if (!all.empty()) all += " / ";
    for (std::int32_t i = 0; i < columnCount(row); ++i) all += (i ? " | " : "") + text(row, i);
  }
  return all;
}

void ListView::setColumns(const std::vector<std::string>& headings) {
  if (!textOf_) {
    for (Row& row : rows_) row.texts.resize(std::max(headings.size(), row.texts.size()));
  }
  set(columns_, headings);
}

std::int32_t ListView::addRow(const std::vector<std::string>& texts, std::int32_t data) {
  rows_.push_back({texts, data});
  rows_.back().texts.resize(std::max(columns_.size(), texts.size()));
  changed();
  return rowCount() - 1;
}

void ListView::setRows(const std::vector<std::int32_t>& data, TextOf textOf) {
  clear();
  rows_.reserve(data.size());
  for (const std::int32_t each : data) rows_.push_back({{}, each});
  textOf_ = std::move(textOf);
  changed();
}

void ListView::removeRow(std::int32_t row) {
  rowAt(row);
  editing_ = false;
  rows_.erase(rows_.begin() + row);
  if (selected_ > row || selected_ >= rowCount()) --selected_;
  changed();
}

void ListView::clear() {
  rows_.clear();
  textOf_ = nullptr;
  selected_ = -1;
  editing_ = false;
  changed();
}

const ListView::Row& ListView::rowAt(std::int32_t row) const {
  if (row < 0 || row >= rowCount()) {
    throw Error(errors::indexOutOfRange,
                "The list \"" + name() + "\" has no row " + std::to_string(row) + ".");
  }
  return rows_[static_cast<std::size_t>(row)];
}

std::int32_t ListView::columnCount(std::int32_t row) const {
  return static_cast<std::int32_t>(textOf_ ? columns_.size() : rowAt(row).texts.size());
}

void ListView::requireColumn(std::int32_t row, std::int32_t column) const {
  if (rowAt(row); column < 0 || column >= columnCount(row)) {
    throw Error(errors::indexOutOfRange,
                "The list \"" + name() + "\" has no column " + std::to_string(column) + ".");
  }
}

std::string ListView::text(std::int32_t row, std::int32_t column) const {
  requireColumn(row, column);
  if (textOf_) return textOf_(rowAt(row).data, column);
  return rowAt(row).texts[static_cast<std::size_t>(column)];
}

void ListView::setText(std::int32_t row, std::int32_t column, const std::string& text) {
  requireColumn(row, column);
  set(rows_[static_cast<std::size_t>(row)].texts.at(static_cast<std::size_t>(column)), text);
}

void ListView::setSelectedRow(std::int32_t row) {
  if (row != -1) rowAt(row);
  if (row != selected_) userEndLabelEdit(true);
  if (set(selected_, row)) itemClick.raise();
}

void ListView::startLabelEdit() {
  if (selected_ < 0 || editing_) return;
  bool cancel = false;
  beforeLabelEdit.raise(cancel);
  if (cancel) return;
  editedText_ = text(selected_, 0);
  set(editing_, true);
}

void ListView::userSelect(std::int32_t row) {
  rowAt(row);
  userEndLabelEdit(true);
  set(selected_, row);
  itemClick.raise();
}

void ListView::userDoubleClick(std::int32_t row) {
  userSelect(row);
  doubleClick.raise();
}

void ListView::userEndLabelEdit(bool accept) {
  if (!editing_) return;
  editing_ = false;
  if (accept) {
    bool cancel = false;
    std::string label = editedText_;
    const std::int32_t row = selected_;
    afterLabelEdit.raise(cancel, label);
    if (!cancel && row < rowCount()) setText(row, 0, label);  // a handler may have removed rows
  }
  changed();
}

bool ListView::userKey(const KeyDown& key) {
  if (editing_) {
    if (key.code != keys::enter && key.code != keys::escape) return false;
    userEndLabelEdit(key.code == keys::enter);
    return true;
  }
  if (key.code == keys::f2 && labelEditable_) {
    startLabelEdit();
    return true;
  }
  if ((key.code != keys::up && key.code != keys::down) || rows_.empty()) return false;
  setSelectedRow(std::clamp(selected_ + (key.code == keys::down ? 1 : -1), 0, rowCount() - 1));
  return true;
}

}  // namespace forms
