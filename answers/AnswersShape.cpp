#include "answers/AnswersShape.h"

#include <algorithm>
#include <string_view>

#include "answers/Table.h"

namespace answers {
namespace {

/// The key of this name; one that is not there yet becomes an object.
Key& keyOf(Shape& shape, std::string_view name) {
  const auto found = std::find_if(shape.keys.begin(), shape.keys.end(),
                                  [&](const Key& key) { return key.name == name; });
  if (found != shape.keys.end()) return *found;
  return shape.keys.emplace_back(Key{.name = std::string(name), .shape = object({})});
}

/// The key at a path such as "transmitters[].label".
Key& keyAt(Shape& shape, std::string_view path) {
  constexpr std::string_view each = "[]";
  const std::size_t point = path.find('.');
  std::string_view name = path.substr(0, point);
  const bool isEach = name.ends_with(each);
  if (isEach) name.remove_suffix(each.size());
  Key& key = keyOf(shape, name);
  if (point == std::string_view::npos) return key;
  return keyAt(isEach ? key.shape.keys.front().shape : key.shape, path.substr(point + 1));
}

Shape makeShape() {
  Shape shape = object({{"$schema", anything()}});
  for (const Step& step : table()) {
    for (const Row& row : step.rows) {
      Key& key = keyAt(shape, row.key);
      key.shape = row.type;
      key.isRequired = row.leftOut.kind == LeftOut::Kind::required;
      key.description = step.name + ": " + row.meaning;
      key.leftOut = row.leftOut.value;
    }
  }
  return shape;
}

}  // namespace

const Shape& answersShape() {
  static const Shape shape = makeShape();
  return shape;
}

}  // namespace answers
