#include "answers/RoomColumns.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "answers/AnswersShape.h"
#include "base/Nearest.h"
#include "forms/Text.h"

namespace answers {
namespace {

using base::Json;

/// Adds the paths of all that stands below.
void addPaths(const Shape& shape, const std::string& path,
              std::vector<std::pair<std::string, const Shape*>>& paths) {
  if (shape.kind == Shape::Kind::object) {
    for (const Key& key : shape.keys) {
      if (key.shape.kind == Shape::Kind::anything) continue;
      paths.emplace_back(path.empty() ? key.name : path + "." + key.name, &key.shape);
      addPaths(key.shape, std::string(paths.back().first), paths);
    }
  } else if (shape.kind == Shape::Kind::array) {
    for (std::int64_t i = 0; i < shape.maximum; ++i) {
      const Shape& element = shape.keys.front().shape;
      paths.emplace_back(path + "[" + std::to_string(i) + "]", &element);
      addPaths(element, std::string(paths.back().first), paths);
    }
  }
}

const std::vector<std::pair<std::string, const Shape*>>& knownPaths() {
  static const auto paths = [] {
    std::vector<std::pair<std::string, const Shape*>> all;
    addPaths(answersShape(), {}, all);
    return all;
  }();
  return paths;
}

const Shape* shapeAt(const std::string& path) {
  for (const auto& [known, shape] : knownPaths()) {
    if (known == path) return shape;
  }
  return nullptr;
}

std::string noColumn(const std::string& name) {
  if (name.empty()) return "the column has no name; give it one, or take it away";
  std::vector<std::string> known;
  for (const auto& [path, shape] : knownPaths()) known.push_back(path);
  return base::quoted(name) + " is no path of an answer; known are " + base::among(name, known);
}

Json integerOf(const std::string& text) {
  std::int64_t number = 0;
  const char* end = text.data() + text.size();
  const auto [behind, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && behind == end ? Json(number) : Json(text);
}

Json booleanOf(const std::string& text) {
  for (const bool value : {true, false}) {
    if (forms::equalsIgnoringCase(text, value ? "true" : "false")) return value;
  }
  return text;
}

/// Null, or a structure with nothing in it, which other cells may fill.
Json structureOf(const std::string& text, const Json& empty) {
  if (text == "null") return nullptr;
  return text == empty.dump() ? empty : Json(text);
}

}  // namespace

std::vector<RoomColumn> roomColumns(const std::vector<std::string>& names,
                                    std::vector<TableFault>& faults) {
  constexpr std::size_t firstRow = 1;
  std::map<std::string, RoomColumn> columns;
  for (std::size_t place = 0; place < names.size(); ++place) {
    const std::string path = forms::trimmed(names[place]);
    const Shape* shape = shapeAt(path);
    if (!shape) {
      faults.push_back({firstRow, place, noColumn(path)});
      continue;
    }
    const auto [column, isNew] = columns.try_emplace(path, RoomColumn{place, path, shape});
    if (!isNew) {
      faults.push_back({firstRow, place,
                        base::quoted(path) + " stands above column " +
                            columnLetters(column->second.place) + " already"});
    }
  }
  std::vector<RoomColumn> sorted;
  for (auto& [path, column] : columns) sorted.push_back(column);
  return sorted;
}

Json valueOf(const std::string& cell, const Shape& shape) {
  const std::string text = forms::trimmed(cell);
  switch (shape.kind) {
    case Shape::Kind::text:
      return cell == "\"\"" ? Json("") : Json(cell);
    case Shape::Kind::integer:
      return integerOf(text);
    case Shape::Kind::boolean:
      return booleanOf(text);
    case Shape::Kind::object:
      return structureOf(text, Json::object());
    case Shape::Kind::array:
      return structureOf(text, Json::array());
    case Shape::Kind::word:
    case Shape::Kind::anything:
      return text;
  }
  return text;
}

}  // namespace answers
