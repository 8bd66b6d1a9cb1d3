#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "answers/TableFault.h"

namespace answers {

/// Reads a table of cells row by row, as spreadsheets write it (RFC 4180): a cell may stand in
/// quotation marks, and must where it holds one, a separator or the end of a line. The separator is
/// the comma, the semicolon or the tab, whichever the first line has most of; lines end with CR,
/// LF or both. A byte order mark is passed over.
class CsvReader {
 public:
  /// The text stays where it is.
  explicit CsvReader(std::string_view text);

  /// The cells of the next row, at least one; false behind the last row. What is wrong with a cell
  /// is added to the faults, and the reading goes on behind it.
  bool next(std::vector<std::string>& cells, std::vector<TableFault>& faults);

  /// The number of the row that was read last, from 1.
  std::size_t row() const { return row_; }

 private:
  std::string cell();
  std::string quotedCell();
  std::string_view upTo(std::string_view signs);
  bool skip(std::string_view sign);

  std::string_view rest_;
  std::string ends_;  // of a cell that stands in no quotation marks
  std::size_t row_ = 0;
  std::string_view cellFault_;
};

}  // namespace answers
