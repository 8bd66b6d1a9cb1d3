#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/Fault.h"
#include "base/Json.h"

namespace answers {

struct Key;

/// What a value of a file may be, as a literal that reads like the file's description:
///
///     object({{"label", text(1, 8)}, {"type", text(), Key::required}})
struct Shape {
  enum class Kind { text, word, integer, boolean, object, array, anything };

  Kind kind = Kind::object;
  /// Of an integer its limits, of a text its number of characters, of an array that of its
  /// elements.
  std::int64_t minimum = 0;
  std::int64_t maximum = 0;
  std::vector<std::string> words;
  /// Of an object its keys, of an array the shape of its elements under an empty name.
  std::vector<Key> keys;
  /// What a text must be besides, and the words that say so; empty: nothing.
  std::function<bool(const std::string&)> accepts;
  std::string acceptsWhat;
  bool takesNull = false;
};

struct Key {
  static constexpr bool required = true;

  std::string name;
  Shape shape;
  bool isRequired = false;
};

inline constexpr std::int64_t noLimit = INT64_MAX;

Shape text(std::int64_t minimum = 0, std::int64_t maximum = noLimit);
/// `what` ends the sentence "must be a text of 1 to 8 characters".
Shape text(std::int64_t minimum, std::int64_t maximum,
           std::function<bool(const std::string&)> accepts, std::string what);
Shape word(std::vector<std::string> words);
Shape integer(std::int64_t minimum, std::int64_t maximum);
Shape boolean();
Shape object(std::vector<Key> keys);
Shape array(std::int64_t maximum, Shape element);

/// The shape, and null besides.
Shape orNull(Shape shape);
/// Whatever stands there.
Shape anything();

/// Compares a value with its shape, from the first key to the last. Every difference becomes a
/// fault, which names the place and what is allowed there:
///
///     lockout.contact: "opened" is none of "unused", "power off", "continue"
void check(const base::Json& value, const Shape& shape, std::vector<base::Fault>& faults,
           const std::string& path = {});

/// "a whole number from 0 to 999", as it ends the sentence "must be".
std::string described(const Shape& shape);

/// The texts in quotation marks, with commas between.
std::string quoted(const std::vector<std::string>& texts);
std::string quoted(const std::string& text);

}  // namespace answers
