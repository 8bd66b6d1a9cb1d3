#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "answers/Shape.h"
#include "answers/TableFault.h"
#include "base/Json.h"

namespace answers {

/// A column of a table of rooms: the answer that its cells are.
struct RoomColumn {
  std::size_t place = 0;  // from 0
  std::string path;       // "display.relay.on_delay", "transmitters[0].label"
  const Shape* shape = nullptr;
};

/// The columns that a table's first row names, sorted so that an object stands before what is in
/// it, and an element before the next. What is no path of a key, and what stands twice, is a fault.
std::vector<RoomColumn> roomColumns(const std::vector<std::string>& names,
                                    std::vector<TableFault>& faults);

/// What a cell says, as far as its column takes it; what it does not take stays a text, which the
/// column's shape then refuses.
base::Json valueOf(const std::string& cell, const Shape& shape);

}  // namespace answers
