#include "forms/Text.h"

#include <algorithm>
#include <array>

namespace forms {
namespace {

constexpr char32_t replacement = 0xFFFD;

bool isContinuation(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

/// The number of bytes that a first byte announces; 0 when it can't be a first one.
std::size_t announcedLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xC2 && first <= 0xDF) return 2;
  if (first >= 0xE0 && first <= 0xEF) return 3;
  if (first >= 0xF0 && first <= 0xF4) return 4;
  return 0;
}

bool isValid(char32_t codePoint, std::size_t bytes) {
  constexpr std::array<char32_t, 5> smallest{0, 0, 0x80, 0x800, 0x10000};
  return codePoint >= smallest[bytes] && codePoint <= 0x10FFFF &&
         (codePoint < 0xD800 || codePoint > 0xDFFF);
}

/// Reads one character at `at` and moves behind it.
char32_t readCodePoint(std::string_view text, std::size_t& at) {
  const auto first = static_cast<unsigned char>(text[at]);
  const std::size_t bytes = announcedLength(first);
  if (bytes == 1) return static_cast<char32_t>(text[at++]);
  if (bytes == 0 || at + bytes > text.size()) return ++at, replacement;
  char32_t codePoint = first & (0x7FU >> bytes);
  for (std::size_t i = 1; i < bytes; ++i) {
    const auto byte = static_cast<unsigned char>(text[at + i]);
    if (!isContinuation(byte)) return ++at, replacement;
    codePoint = (codePoint << 6U) | (byte & 0x3FU);
  }
  if (!isValid(codePoint, bytes)) return ++at, replacement;
  at += bytes;
  return codePoint;
}

void appendCodePoint(std::string& text, char32_t c) {
  const auto byte = [&](char32_t value) { text.push_back(static_cast<char>(value)); };
  if (c < 0x80) {
    byte(c);
  } else if (c < 0x800) {
    byte(0xC0U | (c >> 6U));
    byte(0x80U | (c & 0x3FU));
  } else if (c < 0x10000) {
    byte(0xE0U | (c >> 12U));
    byte(0x80U | ((c >> 6U) & 0x3FU));
    byte(0x80U | (c & 0x3FU));
  } else {
    byte(0xF0U | (c >> 18U));
    byte(0x80U | ((c >> 12U) & 0x3FU));
    byte(0x80U | ((c >> 6U) & 0x3FU));
    byte(0x80U | (c & 0x3FU));
  }
}

bool isBetween(char32_t c, char32_t first, char32_t last) { return c >= first && c <= last; }

/// The ranges in which an upper case letter of even (or odd) code is followed by its lower case.
bool isEvenPair(char32_t c) {
  return isBetween(c, 0x100, 0x12F) || isBetween(c, 0x132, 0x137) || isBetween(c, 0x14A, 0x177) ||
         isBetween(c, 0x460, 0x481) || isBetween(c, 0x48A, 0x4BF) || isBetween(c, 0x4D0, 0x52F);
}
bool isOddPair(char32_t c) { return isBetween(c, 0x139, 0x148) || isBetween(c, 0x179, 0x17E); }

/// Letters whose other case follows no rule: upper, lower.
constexpr std::array<std::array<char32_t, 2>, 8> singlePairs{{{0x178, 0xFF},
                                                              {0x386, 0x3AC},
                                                              {0x388, 0x3AD},
                                                              {0x389, 0x3AE},
                                                              {0x38A, 0x3AF},
                                                              {0x38C, 0x3CC},
                                                              {0x38E, 0x3CD},
                                                              {0x38F, 0x3CE}}};

char32_t otherOfPair(char32_t c, std::size_t from) {
  for (const auto& pair : singlePairs) {
    if (pair[from] == c) return pair[1 - from];
  }
  return c;
}

char32_t upperCase(char32_t c) {
  if (isBetween(c, U'a', U'z') || (isBetween(c, 0xE0, 0xFE) && c != 0xF7)) return c - 32;
  if (isBetween(c, 0x3B1, 0x3CB) && c != 0x3C2) return c - 32;
  if (isBetween(c, 0x430, 0x44F)) return c - 32;
  if (isBetween(c, 0x450, 0x45F)) return c - 80;
  if (isEvenPair(c)) return c & ~char32_t{1};
  if (isOddPair(c) && c % 2 == 0) return c - 1;
  return otherOfPair(c, 1);
}

template <typename Change>
std::string changed(std::string_view text, Change change) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    appendCodePoint(result, change(readCodePoint(text, at)));
  }
  return result;
}

/// The byte behind the first `count` characters.
std::size_t byteOf(std::string_view text, std::int32_t count) {
  std::size_t at = 0;
  for (std::int32_t i = 0; i < count && at < text.size(); ++i) readCodePoint(text, at);
  return at;
}

}  // namespace

std::u32string toCodePoints(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) result.push_back(readCodePoint(text, at));
  return result;
}

std::string fromCodePoints(std::u32string_view codePoints) {
  std::string result;
  result.reserve(codePoints.size());
  for (const char32_t c : codePoints) appendCodePoint(result, c);
  return result;
}

std::int32_t length(std::string_view text) {
  std::int32_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count) readCodePoint(text, at);
  return count;
}

std::string left(std::string_view text, std::int32_t count) {
  return std::string(text.substr(0, byteOf(text, count)));
}

std::string right(std::string_view text, std::int32_t count) {
  return std::string(text.substr(byteOf(text, length(text) - count)));
}

std::string withoutLast(std::string_view text, std::int32_t count) {
  return left(text, std::max(0, length(text) - count));
}

std::string trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::string withSingleBlanks(std::string_view text) {
  std::string single;
  for (const char character : trimmed(text)) {
    if (character != ' ' || single.back() != ' ') single.push_back(character);
  }
  return single;
}

char32_t lowerCase(char32_t c) {
  if (isBetween(c, U'A', U'Z') || (isBetween(c, 0xC0, 0xDE) && c != 0xD7)) return c + 32;
  if (isBetween(c, 0x391, 0x3AB) && c != 0x3A2) return c + 32;
  if (isBetween(c, 0x410, 0x42F)) return c + 32;
  if (isBetween(c, 0x400, 0x40F)) return c + 80;
  if (isEvenPair(c)) return c | 1U;
  if (isOddPair(c) && c % 2 == 1) return c + 1;
  return otherOfPair(c, 0);
}

std::string lowerCase(std::string_view text) {
  return changed(text, [](char32_t c) { return lowerCase(c); });
}

std::string upperCase(std::string_view text) {
  return changed(text, [](char32_t c) { return upperCase(c); });
}

int compareIgnoringCase(std::string_view one, std::string_view other) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < one.size() && j < other.size()) {
    const char32_t a = lowerCase(readCodePoint(one, i));
    const char32_t b = lowerCase(readCodePoint(other, j));
    if (a != b) return a < b ? -1 : 1;
  }
  return static_cast<int>(i < one.size()) - static_cast<int>(j < other.size());
}

bool equalsIgnoringCase(std::string_view one, std::string_view other) {
  return compareIgnoringCase(one, other) == 0;
}

std::string replacedAll(std::string_view text, std::string_view what, std::string_view by) {
  std::string result;
  std::size_t at = 0;
  for (std::size_t found; (found = text.find(what, at)) != std::string_view::npos;) {
    result.append(text.substr(at, found - at)).append(by);
    at = found + what.size();
  }
  return result.append(text.substr(at));
}

}  // namespace forms
