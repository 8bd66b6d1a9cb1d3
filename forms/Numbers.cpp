#include "forms/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace forms {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t skipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && isDigit(text[at])) ++at;
  return at;
}

/// The place behind an exponent that begins at `at`, or `at` when none does.
std::size_t skipExponent(std::string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'e' && text[at] != 'E')) return at;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t end = skipDigits(text, digits);
  return end == digits ? at : end;
}

/// A number too large for a double reads as the largest one, a number too small as 0.
double outOfRange(std::string_view unsignedNumber) {
  const auto exponent = unsignedNumber.find_first_of("eE");
  const bool small = exponent == std::string_view::npos
                         ? unsignedNumber.find_first_not_of('0') == unsignedNumber.find('.')
                         : unsignedNumber[exponent + 1] == '-';
  return small ? 0.0 : std::numeric_limits<double>::max();
}

template <typename Integer>
bool fits(double value) {
  const double rounded = roundedHalfEven(value);
  return rounded >= std::numeric_limits<Integer>::min() &&
         rounded <= std::numeric_limits<Integer>::max();
}

template <typename Integer>
Integer held(double value) {
  if (std::isnan(value)) return 0;
  constexpr double smallest = std::numeric_limits<Integer>::min();
  constexpr double largest = std::numeric_limits<Integer>::max();
  return static_cast<Integer>(std::clamp(roundedHalfEven(value), smallest, largest));
}

}  // namespace

double leadingNumber(std::string_view text) {
  const std::size_t start = text.find_first_not_of(' ');
  if (start == std::string_view::npos) return 0;
  text.remove_prefix(start);
  const bool negative = text.front() == '-';
  if (negative || text.front() == '+') text.remove_prefix(1);

  std::size_t end = skipDigits(text, 0);
  if (end < text.size() && text[end] == '.') end = skipDigits(text, end + 1);
  const std::string_view mantissa = text.substr(0, end);
  if (std::none_of(mantissa.begin(), mantissa.end(), isDigit)) return 0;
  end = skipExponent(text, end);

  double value = 0;
  const auto [stop, status] = std::from_chars(text.data(), text.data() + end, value);
  if (status == std::errc::result_out_of_range) value = outOfRange(text.substr(0, end));
  return negative && value != 0 ? -value : value;
}

double roundedHalfEven(double value) {
  const double below = std::floor(value);
  const double over = value - below;
  if (over != 0.5) return over < 0.5 ? below : below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t toInt16(double value) { return held<std::int16_t>(value); }
std::int32_t toInt32(double value) { return held<std::int32_t>(value); }
bool fitsInt16(double value) { return fits<std::int16_t>(value); }
bool fitsInt32(double value) { return fits<std::int32_t>(value); }

std::int16_t absolute(std::int16_t value) { return toInt16(std::abs(static_cast<double>(value))); }

std::string decimal(std::int32_t value) { return std::to_string(value); }

std::string decimal(float value) {
  std::array<char, 64> digits{};
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), value, std::chars_format::fixed);
  return {digits.data(), end.ptr};
}

std::string decimalWithSignPlace(std::int32_t value) {
  const std::string number = decimal(value);
  return value < 0 ? number : " " + number;
}

}  // namespace forms
