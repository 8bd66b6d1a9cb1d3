#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>

#include "base/Json.h"

/// A list of fields says once how a value stands in a JSON object, and serves its reader and its
/// writer: a template over either of the two classes here and over the value.
///
///     template <typename Fields, typename Line>
///     void lineFields(Fields& fields, Line& line) {
///       fields("part", line.part, 0);
///       fields("quantity", line.quantity, 0);
///     }
namespace base {

template <typename T>
using Choices = std::initializer_list<std::pair<const char*, T>>;

/// The name of a value among the choices; empty when it is none of them.
template <typename T>
const char* nameOf(T value, Choices<T> choices) {
  for (const auto& [name, candidate] : choices) {
    if (candidate == value) return name;
  }
  return "";
}

/// Fills a value. Raises what JsonReader raises; which keys are left over is not looked at.
class FieldReader {
 public:
  explicit FieldReader(JsonReader& reader) : reader_(reader) {}

  void operator()(const char* key, std::string& value) { value = reader_.at(key).text(); }
  void operator()(const char* key, bool& value) { value = reader_.at(key).boolean(); }
  void operator()(const char* key, std::int16_t& value, std::int16_t minimum,
                  std::int16_t maximum = INT16_MAX) {
    value = reader_.at(key).int16(minimum, maximum);
  }
  void operator()(const char* key, std::int32_t& value, std::int32_t minimum,
                  std::int32_t maximum = INT32_MAX) {
    value = reader_.at(key).int32(minimum, maximum);
  }
  template <typename T>
  void operator()(const char* key, T& value, Choices<T> choices) {
    value = reader_.at(key).choice(choices);
  }

  /// A key that is left out where the value is `usual`, which it is so far.
  template <typename T, typename... Limits>
  void unless(const std::type_identity_t<T>&, const char* key, T& value, Limits... limits) {
    reader_.ifPresent(key, [&](const JsonReader&) { (*this)(key, value, limits...); });
  }
  template <typename T, typename... Limits>
  void unless(std::nullopt_t, const char* key, std::optional<T>& value, Limits... limits) {
    reader_.ifPresent(key, [&](const JsonReader&) { (*this)(key, value.emplace(), limits...); });
  }

  /// A key whose value is read by hand. Raises when it is missing.
  void own(const char* key) { static_cast<void>(reader_.at(key)); }

 private:
  JsonReader& reader_;
};

/// Puts a value into an object, its keys in the order of the list.
class FieldWriter {
 public:
  explicit FieldWriter(Json& json) : json_(json) {}

  template <typename T, typename... Limits>
  void operator()(const char* key, const T& value, Limits...) {
    json_[key] = value;
  }
  template <typename T>
  void operator()(const char* key, const T& value, Choices<T> choices) {
    json_[key] = nameOf(value, choices);
  }

  template <typename T, typename... Limits>
  void unless(const std::type_identity_t<T>& usual, const char* key, const T& value,
              Limits... limits) {
    if (value != usual) (*this)(key, value, limits...);
  }
  template <typename T, typename... Limits>
  void unless(std::nullopt_t, const char* key, const std::optional<T>& value, Limits... limits) {
    if (value) (*this)(key, *value, limits...);
  }

  /// The key's place, into which the value is put by hand.
  void own(const char* key) { json_[key] = nullptr; }

 private:
  Json& json_;
};

}  // namespace base
