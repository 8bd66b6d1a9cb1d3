#include "answers/RoomTable.h"

#include <algorithm>
#include <map>
#include <utility>

#include "answers/AnswersShape.h"
#include "answers/CsvReader.h"
#include "answers/RoomColumns.h"
#include "answers/Shape.h"
#include "base/Nearest.h"
#include "forms/Text.h"

namespace answers {
namespace {

using base::Json;
using Cells = std::vector<std::string>;

/// Whether other cells can say what is in the value.
bool isWrongStructure(const Json& value, const Shape& shape) {
  if (value.is_null()) return !shape.takesNull;
  return (shape.kind == Shape::Kind::object && !value.is_object()) ||
         (shape.kind == Shape::Kind::array && !value.is_array());
}

bool stands(const std::string& path, const std::string& within) {
  const std::string_view rest = std::string_view(path).substr(std::min(path.size(), within.size()));
  return path.starts_with(within) && (rest.empty() || rest[0] == '.' || rest[0] == '[');
}

std::string around(const std::string& path) {
  const std::size_t end = path.find_last_of(".[");
  return path.substr(0, end == std::string::npos ? 0 : end);
}

Json::json_pointer pointerTo(std::string path) {
  std::erase(path, ']');
  std::replace_if(
      path.begin(), path.end(), [](char c) { return c == '.' || c == '['; }, '/');
  return Json::json_pointer("/" + path);
}

/// The value with the keys of its objects in the order of the shape.
Json inOrder(const Json& value, const Shape& shape) {
  if (value.is_array()) {
    Json elements = Json::array();
    for (const Json& each : value) elements.push_back(inOrder(each, shape.keys.front().shape));
    return elements;
  }
  if (!value.is_object() || shape.kind == Shape::Kind::anything) return value;
  Json members = Json::object();
  for (const Key& key : shape.keys) {
    const auto member = value.find(key.name);
    if (member != value.end()) members[key.name] = inOrder(*member, key.shape);
  }
  return members;
}

/// One row on its way to a room.
class RowOfCells {
 public:
  RowOfCells(std::size_t row, const Cells& cells, const std::vector<RoomColumn>& columns,
             std::vector<TableFault>& faults)
      : row_(row), cells_(cells), columns_(columns), faults_(faults) {}

  /// The template with what the cells say in its place.
  Json over(Json room) const {
    std::string emptied;
    for (const RoomColumn& column : columns_) {
      if (!isFilled(column)) continue;
      if (!emptied.empty() && stands(column.path, emptied)) {
        tell(column, column.path + ": is not asked for, since " + emptied +
                         " is null in this row; leave the cell empty");
        continue;
      }
      const Json value = valueOf(cells_[column.place], *column.shape);
      if (isWrongStructure(value, *column.shape)) {
        tell(column, column.path + ": must be " + described(*column.shape));
        continue;
      }
      if (value.is_null()) emptied = column.path;
      room[pointerTo(column.path)] = value;
    }
    std::vector<base::Fault> faults;
    check(room, answersShape(), faults);
    for (const base::Fault& fault : faults) tell(columnOf(fault.path), fault.text());
    return room;
  }

 private:
  bool isFilled(const RoomColumn& column) const { return !cells_[column.place].empty(); }

  void tell(const RoomColumn& column, const std::string& what) const {
    faults_.push_back({row_, column.place, what});
  }

  /// The column that brought a fault: the one of that path, or the innermost filled one that it
  /// stands in, or one beside it that asks for what is missing. The template itself has no faults.
  const RoomColumn& columnOf(const std::string& path) const {
    const RoomColumn* found = nullptr;
    for (const RoomColumn& column : columns_) {
      const bool isIt = column.path == path;
      if (isIt || (isFilled(column) && stands(path, column.path))) found = &column;
    }
    for (auto each = columns_.rbegin(); !found && each != columns_.rend(); ++each) {
      if (isFilled(*each) && stands(each->path, around(path))) found = &*each;
    }
    return found ? *found : columns_.front();
  }

  std::size_t row_;
  const Cells& cells_;
  const std::vector<RoomColumn>& columns_;
  std::vector<TableFault>& faults_;
};

bool isControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }

bool canNameAFile(const std::string& name) {
  constexpr std::string_view apart = "/\\";
  return !name.starts_with('.') && name.find_first_of(apart) == std::string::npos &&
         std::none_of(name.begin(), name.end(), isControl);
}

/// The names of the rooms so far, with their rows.
class Names {
 public:
  /// What keeps a name from being that of this row's room; empty: nothing.
  std::string faultOf(const std::string& name, std::size_t row) {
    if (name.empty()) return "name: is missing; of several rooms each must have one";
    if (!canNameAFile(name)) {
      return "name: " + base::quoted(name) +
             " can't name a file: it holds a slash, a backslash or a "
             "control character, or begins with a point";
    }
    const auto [first, isNew] = rows_.emplace(forms::lowerCase(name), row);
    if (isNew) return {};
    return "name: " + base::quoted(name) + " stands in row " + std::to_string(first->second) +
           " already";
  }

 private:
  std::map<std::string, std::size_t> rows_;
};

bool isEmpty(const Cells& cells) {
  return std::all_of(cells.begin(), cells.end(), [](const auto& cell) { return cell.empty(); });
}

std::string wrongNumber(std::size_t cells, std::size_t wanted) {
  return std::string(cells < wanted ? "is missing" : "is too many") + "; the row has " +
         std::to_string(cells) + " cells and the first row " + std::to_string(wanted);
}

/// Reads the rows below the first one.
class RowsReader {
 public:
  RowsReader(CsvReader& csv, const Json& pattern, const std::vector<RoomColumn>& columns,
             std::size_t nameColumn)
      : csv_(csv), pattern_(pattern), columns_(columns), nameColumn_(nameColumn) {}

  void read(std::size_t width, RoomTable& table) {
    Cells cells;
    for (std::size_t before = 0; csv_.next(cells, table.faults); before = table.faults.size()) {
      if (isEmpty(cells) || table.faults.size() > before) continue;
      if (cells.size() == width) {
        add(cells, table);
      } else {
        table.faults.push_back(
            {csv_.row(), std::min(cells.size(), width), wrongNumber(cells.size(), width)});
      }
    }
  }

 private:
  void add(const Cells& cells, RoomTable& table) {
    const Json room = RowOfCells(csv_.row(), cells, columns_, table.faults).over(pattern_);
    const std::string name = forms::trimmed(cells[nameColumn_]);
    const std::string fault = names_.faultOf(name, csv_.row());
    if (!fault.empty()) table.faults.push_back({csv_.row(), nameColumn_, fault});
    if (!table.faults.empty()) return;
    table.rooms.push_back({csv_.row(), name, base::jsonText(inOrder(room, answersShape()))});
  }

  CsvReader& csv_;
  const Json& pattern_;
  const std::vector<RoomColumn>& columns_;
  std::size_t nameColumn_;
  Names names_;
};

}  // namespace

RoomTable::RoomTable(std::string_view text, const Json& pattern) {
  CsvReader csv(text);
  Cells names;
  csv.next(names, faults);
  const std::vector<RoomColumn> columns = roomColumns(names, faults);
  const auto name = std::find_if(columns.begin(), columns.end(),
                                 [](const RoomColumn& column) { return column.path == "name"; });
  if (faults.empty() && name == columns.end()) {
    faults.push_back({.what = "there is no column \"name\", from which each room takes its own"});
  }
  if (!faults.empty()) return;
  nameColumn = name->place;
  RowsReader(csv, pattern, columns, nameColumn).read(names.size(), *this);
  std::stable_sort(faults.begin(), faults.end(), [](const auto& one, const auto& other) {
    return std::pair(one.row, one.column) < std::pair(other.row, other.column);
  });
  if (!faults.empty()) rooms.clear();
}

}  // namespace answers
