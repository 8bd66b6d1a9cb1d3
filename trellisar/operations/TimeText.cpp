#include "trellisar/operations/TimeText.h"

#include <algorithm>
#include <string>

#include "forms/Numbers.h"
#include "forms/Text.h"

namespace trellisar {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Digits with at most one point among them, and at least one digit.
bool isDecimal(std::string_view text) {
  const auto points = std::count(text.begin(), text.end(), '.');
  const auto digits = std::count_if(text.begin(), text.end(), isDigit);
  return digits > 0 && points <= 1 && points + digits == static_cast<std::ptrdiff_t>(text.size());
}

/// Moves the point two places to the right in the text, so that no binary fraction spoils a half.
std::string timesHundred(std::string_view number) {
  const auto point = std::min(number.find('.'), number.size());
  std::string fraction(number.substr(std::min(point + 1, number.size())));
  while (fraction.size() < 2) fraction += '0';
  return std::string(number.substr(0, point)) + fraction.substr(0, 2) + "." + fraction.substr(2);
}

}  // namespace

std::int32_t hundredthsOfSecond(std::string_view text) {
  std::string number = forms::trimmed(text);
  if (number.ends_with('s')) number = forms::trimmed(forms::withoutLast(number, 1));
  const bool isNegative = number.starts_with('-');
  if (isNegative || number.starts_with('+')) number.erase(0, 1);
  if (!isDecimal(number)) return 0;
  const double hundredths = forms::leadingNumber(timesHundred(number));
  return forms::toInt32(isNegative ? -hundredths : hundredths);
}

}  // namespace trellisar
