#pragma once

#include <cstddef>
#include <string>

namespace answers {

/// What is wrong with a cell of a table.
struct TableFault {
  std::size_t row = 1;     // from 1, as a spreadsheet counts: the row that names the columns is 1
  std::size_t column = 0;  // from 0
  std::string what;

  /// `row 3, column B: must be a whole number from 0 to 999`
  std::string text() const;
};

/// The letters that a spreadsheet has above a column: "A" for 0, "AA" for 26.
std::string columnLetters(std::size_t column);

}  // namespace answers
