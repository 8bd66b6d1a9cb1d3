#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "answers/TableFault.h"
#include "base/Json.h"

namespace answers {

/// What an answers file says for one row of a table.
struct TableRoom {
  std::size_t row;
  std::string name;  // as a file may be called
  std::string text;  // of the file, its keys in the order of docs/answers.md
};

/// A table of rooms: its first row names the paths of answers, each further one is a room, which
/// keeps the template's answers where its cells are empty. Rows with nothing in them are passed
/// over. Each room has a name that no other has.
///
///     name,display.device,lockout.on
///     Seminar 101,Orvistel F42,30
struct RoomTable {
  /// The template has the form of an answers file.
  RoomTable(std::string_view text, const base::Json& pattern);

  std::size_t nameColumn = 0;
  std::vector<TableRoom> rooms;    // in the table's order; only where there are no faults
  std::vector<TableFault> faults;  // from the first cell to the last
};

}  // namespace answers
