#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "base/Fault.h"
#include "base/Json.h"

namespace answers {

struct Key;

/// What a text must be besides its length.
struct Further {
  std::function<bool(const std::string&)> accepts;  // empty: whatever it is
  std::string what;     // ends the sentence "must be a text of 1 to 8 characters"
  std::string pattern;  // says the same in a regular expression
};

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
  Further further;
  /// What of the device library a text names: a device of a category, one that a slot takes, or a
  /// command of a category's devices. `check` takes any: it is the wizard who knows the library.
  enum class Names { nothing, device, slotDevice, command };
  Names names = Names::nothing;
  std::string category;
  bool takesNull = false;
};

struct Key {
  static constexpr bool required = true;

  std::string name;
  Shape shape;
  bool isRequired = false;
  std::string description = {};
  base::Json leftOut = {};  // what holds where the key is left out; null: that is not said
};

inline constexpr std::int64_t noLimit = INT64_MAX;

Shape text(std::int64_t minimum = 0, std::int64_t maximum = noLimit);
Shape text(std::int64_t minimum, std::int64_t maximum, Further further);
/// The name of a library device, of one that a slot takes, or of a command that one has.
Shape device(std::string category);
Shape slotDevice();
Shape command(std::string category, std::int64_t minimum = 0);
Shape word(std::vector<std::string> words = {});
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

}  // namespace answers
