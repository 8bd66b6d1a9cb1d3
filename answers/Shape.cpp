#include "answers/Shape.h"

#include <algorithm>
#include <utility>

#include "base/JsonText.h"
#include "base/Nearest.h"
#include "forms/Text.h"

namespace answers {
namespace {

using base::Json;

Shape shapeOf(Shape::Kind kind, std::int64_t minimum = 0, std::int64_t maximum = 0) {
  Shape shape;
  shape.kind = kind;
  shape.minimum = minimum;
  shape.maximum = maximum;
  return shape;
}

std::string below(const std::string& path, const std::string& key) {
  const std::string name = base::nameInPath(key);
  return path.empty() ? name : path + "." + name;
}

std::string describedText(const Shape& shape) {
  std::string text = "a text";
  if (shape.maximum != noLimit) {
    text += shape.minimum == 0 ? " of at most " : " of " + std::to_string(shape.minimum) + " to ";
    text += std::to_string(shape.maximum) + " characters";
  } else if (shape.minimum > 0) {
    text += " that is not empty";
  }
  return text + shape.further.what;
}

bool isIntegerWithin(const Json& value, const Shape& shape) {
  // A number above the signed range is unsigned, and would come out negative.
  if (!value.is_number_integer()) return false;
  if (value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX) return false;
  const auto number = value.get<std::int64_t>();
  return number >= shape.minimum && number <= shape.maximum;
}

bool isTextWithin(const Json& value, const Shape& shape) {
  if (!value.is_string()) return false;
  const auto& text = value.get_ref<const std::string&>();
  const std::int64_t length = forms::length(text);
  return length >= shape.minimum && length <= shape.maximum &&
         (!shape.further.accepts || shape.further.accepts(text));
}

bool fits(const Json& value, const Shape& shape) {
  switch (shape.kind) {
    case Shape::Kind::text:
      return isTextWithin(value, shape);
    case Shape::Kind::word:
      return value.is_string();
    case Shape::Kind::integer:
      return isIntegerWithin(value, shape);
    case Shape::Kind::boolean:
      return value.is_boolean();
    case Shape::Kind::object:
      return value.is_object();
    case Shape::Kind::array:
      return value.is_array() && std::cmp_less_equal(value.size(), shape.maximum);
    case Shape::Kind::anything:
      return true;
  }
  return false;
}

/// The keys that say something here.
std::vector<std::string> namesOf(const std::vector<Key>& keys) {
  std::vector<std::string> names;
  for (const Key& key : keys) {
    if (key.shape.kind != Shape::Kind::anything) names.push_back(key.name);
  }
  return names;
}

void checkObject(const Json& value, const Shape& shape, std::vector<base::Fault>& faults,
                 const std::string& path) {
  for (const auto& [name, member] : value.items()) {
    const std::string place = below(path, name);
    const auto key = std::find_if(shape.keys.begin(), shape.keys.end(),
                                  [&known = name](const Key& k) { return k.name == known; });
    if (key == shape.keys.end()) {
      faults.push_back(
          {"is no key; known here are " + base::among(name, namesOf(shape.keys)), place});
    } else {
      check(member, key->shape, faults, place);
    }
  }
  for (const Key& key : shape.keys) {
    if (!key.isRequired || value.contains(key.name)) continue;
    faults.push_back({"is missing; it must be " + described(key.shape), below(path, key.name)});
  }
}

void checkElements(const Json& value, const Shape& shape, std::vector<base::Fault>& faults,
                   const std::string& path) {
  for (std::size_t i = 0; i < value.size(); ++i) {
    check(value[i], shape.keys.front().shape, faults, path + "[" + std::to_string(i) + "]");
  }
}

/// What is wrong with the value itself, whatever it holds; empty: nothing.
std::string faultOf(const Json& value, const Shape& shape) {
  if (!fits(value, shape)) return "must be " + described(shape);
  if (shape.kind != Shape::Kind::word) return {};
  const auto& word = value.get_ref<const std::string&>();
  const bool isKnown = std::find(shape.words.begin(), shape.words.end(), word) != shape.words.end();
  return isKnown ? std::string()
                 : base::quoted(word) + " is none of " + base::among(word, shape.words);
}

}  // namespace

Shape text(std::int64_t minimum, std::int64_t maximum) {
  return shapeOf(Shape::Kind::text, minimum, maximum);
}

Shape text(std::int64_t minimum, std::int64_t maximum, Further further) {
  Shape shape = text(minimum, maximum);
  shape.further = std::move(further);
  return shape;
}

Shape device(std::string category) {
  Shape shape = text();
  shape.names = Shape::Names::device;
  shape.category = std::move(category);
  return shape;
}

Shape slotDevice() {
  Shape shape = text();
  shape.names = Shape::Names::slotDevice;
  return shape;
}

Shape command(std::string category, std::int64_t minimum) {
  Shape shape = text(minimum);
  shape.names = Shape::Names::command;
  shape.category = std::move(category);
  return shape;
}

Shape word(std::vector<std::string> words) {
  Shape shape = shapeOf(Shape::Kind::word);
  shape.words = std::move(words);
  return shape;
}

Shape integer(std::int64_t minimum, std::int64_t maximum) {
  return shapeOf(Shape::Kind::integer, minimum, maximum);
}

Shape boolean() { return shapeOf(Shape::Kind::boolean); }

Shape object(std::vector<Key> keys) {
  Shape shape = shapeOf(Shape::Kind::object);
  shape.keys = std::move(keys);
  return shape;
}

Shape array(std::int64_t maximum, Shape element) {
  Shape shape = shapeOf(Shape::Kind::array, 0, maximum);
  shape.keys = {{"", std::move(element)}};
  return shape;
}

Shape orNull(Shape shape) {
  shape.takesNull = true;
  return shape;
}

Shape anything() { return shapeOf(Shape::Kind::anything); }

void check(const Json& value, const Shape& shape, std::vector<base::Fault>& faults,
           const std::string& path) {
  if (value.is_null() && shape.takesNull) return;
  const std::string fault = faultOf(value, shape);
  if (!fault.empty()) {
    faults.push_back({fault, path});
  } else if (shape.kind == Shape::Kind::object) {
    checkObject(value, shape, faults, path);
  } else if (shape.kind == Shape::Kind::array) {
    checkElements(value, shape, faults, path);
  }
}

std::string described(const Shape& shape) {
  switch (shape.kind) {
    case Shape::Kind::text:
      return describedText(shape);
    case Shape::Kind::word:
      return "one of " + base::quoted(shape.words);
    case Shape::Kind::integer:
      return "a whole number from " + std::to_string(shape.minimum) + " to " +
             std::to_string(shape.maximum);
    case Shape::Kind::boolean:
      return "true or false";
    case Shape::Kind::object:
      return shape.takesNull ? "an object, or null" : "an object";
    case Shape::Kind::array:
      return "an array of at most " + std::to_string(shape.maximum) + " elements";
    case Shape::Kind::anything:
      return "anything";
  }
  return {};
}

}  // namespace answers
