#include "answers/Differences.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "answers/Table.h"

namespace answers {
namespace {

using base::Json;
using Change = trellisar::Difference::Change;

constexpr std::string_view each = "[]";

/// The value at a path without arrays; null where there is none.
const Json& at(const Json& answers, std::string_view path) {
  static const Json none;
  const Json* value = &answers;
  while (!path.empty()) {
    const std::size_t point = path.find('.');
    if (!value->is_object() || !value->contains(path.substr(0, point))) return none;
    value = &value->at(path.substr(0, point));
    path = point == std::string_view::npos ? std::string_view() : path.substr(point + 1);
  }
  return *value;
}

const Json& at(const Json& array, std::size_t place) {
  static const Json none;
  return array.is_array() && place < array.size() ? array[place] : none;
}

std::size_t sizeOf(const Json& value) { return value.is_array() ? value.size() : 0; }

/// An object says nothing beside its keys.
std::string textOf(const Json& value) { return value.is_structured() ? "" : value.dump(); }

/// What an answer means, without what is said of its form.
std::string shortMeaning(const Row& row) { return row.meaning.substr(0, row.meaning.find(';')); }

class Comparison {
 public:
  void compare(const Row& row, const Json& before, const Json& after) {
    const std::size_t place = row.key.find(each);
    if (place == std::string::npos) {
      return compare(row, row.key, at(before, row.key), at(after, row.key));
    }
    const std::string array = row.key.substr(0, place);
    const std::string key = row.key.substr(place + each.size() + 1);
    const Json& was = at(before, array);
    const Json& is = at(after, array);
    for (std::size_t i = 0; i < std::max(sizeOf(was), sizeOf(is)); ++i) {
      compare(row, array + "[" + std::to_string(i) + "]." + key, at(at(was, i), key),
              at(at(is, i), key));
    }
  }

  const trellisar::Differences& found() const { return found_; }

 private:
  void compare(const Row& row, const std::string& path, const Json& before, const Json& after) {
    const bool isSame =
        before.is_structured() ? after.is_structured() : !after.is_structured() && before == after;
    const bool isArray = before.is_array() || after.is_array();
    if (isSame || isArray) return;
    const Change change = before.is_null()  ? Change::isNew
                          : after.is_null() ? Change::gone
                                            : Change::changed;
    found_.push_back({trellisar::Difference::Part::answers, change, path, shortMeaning(row),
                      before.is_null() ? "" : textOf(before),
                      after.is_null() ? "" : textOf(after)});
  }

  trellisar::Differences found_;
};

}  // namespace

trellisar::Differences differences(const Json& before, const Json& after) {
  Comparison comparison;
  for (const Step& step : table()) {
    for (const Row& row : step.rows) {
      const bool isPlace = row.key == "name" || row.key == "folder";
      if (!isPlace) comparison.compare(row, before, after);
    }
  }
  return comparison.found();
}

}  // namespace answers
