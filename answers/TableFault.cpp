#include "answers/TableFault.h"

namespace answers {

std::string columnLetters(std::size_t column) {
  constexpr std::size_t letters = 26;
  std::string text(1, static_cast<char>('A' + column % letters));
  return column < letters ? text : columnLetters(column / letters - 1) + text;
}

std::string TableFault::text() const {
  return "row " + std::to_string(row) + ", column " + columnLetters(column) + ": " + what;
}

}  // namespace answers
