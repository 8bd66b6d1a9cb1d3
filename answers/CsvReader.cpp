#include "answers/CsvReader.h"

#include <algorithm>

#include "forms/Text.h"

namespace answers {
namespace {

constexpr std::string_view lineEnds = "\r\n";

/// Of the first line's characters outside of quotation marks. No name of a column holds one.
char separatorOf(std::string_view text) {
  constexpr std::string_view separators = ",;\t";
  std::size_t counts[separators.size()] = {};
  bool isQuoted = false;
  for (const char c : text) {
    if (c == '"') isQuoted = !isQuoted;
    if (isQuoted) continue;
    if (lineEnds.find(c) != std::string_view::npos) break;
    const std::size_t place = separators.find(c);
    if (place != std::string_view::npos) ++counts[place];
  }
  const auto most = std::max_element(std::begin(counts), std::end(counts));
  return separators[static_cast<std::size_t>(most - std::begin(counts))];
}

bool isUtf8(std::string_view text) {
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  return std::all_of(text.begin(), text.end(), isAscii) ||
         forms::fromCodePoints(forms::toCodePoints(text)) == text;
}

}  // namespace

CsvReader::CsvReader(std::string_view text) : rest_(text) {
  skip("\xEF\xBB\xBF");
  ends_ = std::string(lineEnds) + separatorOf(rest_);
}

bool CsvReader::next(std::vector<std::string>& cells, std::vector<TableFault>& faults) {
  cells.clear();
  if (rest_.empty()) return false;
  ++row_;
  do {
    cellFault_ = {};
    cells.push_back(cell());
    if (!isUtf8(cells.back())) {
      cellFault_ = "is not written in UTF-8; save the table as CSV in UTF-8";
    }
    if (cells.back().find('\0') != std::string::npos) cellFault_ = "holds a NUL character";
    if (!cellFault_.empty()) faults.push_back({row_, cells.size() - 1, std::string(cellFault_)});
  } while (skip(std::string_view(&ends_.back(), 1)));
  if (!skip(lineEnds)) skip(rest_.substr(0, 1));
  return true;
}

std::string CsvReader::cell() {
  if (skip("\"")) return quotedCell();
  const std::string_view text = upTo(ends_);
  if (text.find('"') != std::string_view::npos) {
    cellFault_ =
        "a quotation mark stands in a cell that does not begin with one; put the cell in "
        "quotation marks, and write those inside twice";
  }
  return std::string(text);
}

std::string CsvReader::quotedCell() {
  std::string text(upTo("\""));
  while (skip("\"\"")) {
    text += '"';
    text += upTo("\"");
  }
  if (!skip("\"")) {
    cellFault_ = "its quotation mark is not closed";
  } else if (!upTo(ends_).empty()) {
    cellFault_ = "something stands behind its closing quotation mark";
  }
  return text;
}

std::string_view CsvReader::upTo(std::string_view signs) {
  const std::string_view found = rest_.substr(0, rest_.find_first_of(signs));
  rest_.remove_prefix(found.size());
  return found;
}

bool CsvReader::skip(std::string_view sign) {
  if (!rest_.starts_with(sign)) return false;
  rest_.remove_prefix(sign.size());
  return true;
}

}  // namespace answers
