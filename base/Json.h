#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Error.h"

namespace base {

/// JSON with its keys in the order in which they stand.
using Json = nlohmann::ordered_json;

/// What a file's JSON may be at most.
struct JsonLimits {
  std::size_t bytes = 64U << 20U;
  int depth = 100;
  std::size_t keysOfObject = 1000;
};

/// Parses a whole text. Duplicate keys and what the limits do not allow are refused.
/// Raises ContentError, whose text begins with `file` and says what is wrong and where.
Json parseJson(std::string_view text, const std::string& file, const JsonLimits& limits = {});

/// An object without keys and with room for some: keys that move to a larger place are copied.
Json emptyObject(std::size_t keys);

/// The text of a file: two blanks for each level, a line feed at the end.
std::string jsonText(const Json& json);

/// A value being read, which knows its place in the file. Errors are ContentError:
/// `library/bravonne.json: devices[3].name: is missing`.
///
/// An object is read key by key and then closed with `finish`, which refuses the keys that nobody
/// asked for.
class JsonReader {
 public:
  JsonReader(const Json& value, const std::string& file) : value_(value), file_(&file) {}

  /// The keys of an object. Raises when the key is missing or the value is no object.
  JsonReader at(const char* key);
  /// As `at`, but false without the key; `read` is called with the value.
  template <typename Read>
  bool ifPresent(const char* key, Read&& read) {
    if (!find(key)) return false;
    read(at(key));
    return true;
  }
  /// Raises when the value is no object, or has a key that was not asked for.
  void finish() const;

  /// Calls `read` for each element of an array.
  template <typename Read>
  void each(Read&& read) const {
    if (!value_.is_array()) fail("must be an array");
    for (std::size_t i = 0; i < value_.size(); ++i) read(JsonReader(value_[i], *this, nullptr, i));
  }
  /// Calls `read` with each key and value of an object.
  template <typename Read>
  void eachKey(Read&& read) const {
    for (const auto& [key, value] : members()) {
      read(key, JsonReader(value, *this, key.c_str(), 0));
    }
  }

  bool isNull() const { return value_.is_null(); }
  std::string text() const;
  bool boolean() const;
  std::int64_t integer(std::int64_t minimum, std::int64_t maximum) const;
  std::int16_t int16(std::int16_t minimum, std::int16_t maximum = INT16_MAX) const;
  std::int32_t int32(std::int32_t minimum, std::int32_t maximum = INT32_MAX) const;

  /// The value that stands beside the text among the choices.
  template <typename T>
  T choice(std::initializer_list<std::pair<const char*, T>> choices) const {
    const std::string value = text();
    std::string all;
    for (const auto& [name, result] : choices) {
      if (value == name) return result;
      all += (all.empty() ? "\"" : ", \"") + std::string(name) + "\"";
    }
    fail("\"" + value + "\" is none of " + all);
  }

  /// Raises the error with the file and the place in front.
  [[noreturn]] void fail(const std::string& what) const;

 private:
  JsonReader(const Json& value, const JsonReader& parent, const char* key, std::size_t index)
      : value_(value), file_(parent.file_), parent_(&parent), key_(key), index_(index) {}

  const Json::object_t& members() const;
  const Json* find(const char* key);
  std::string place() const;

  const Json& value_;
  const std::string* file_;
  const JsonReader* parent_ = nullptr;
  const char* key_ = nullptr;  // null: an element of an array
  std::size_t index_ = 0;
  std::vector<bool> asked_;   // for each key of an object, once one was asked for
  std::size_t expected_ = 0;  // where the next key probably stands
};

}  // namespace base
