#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Text is UTF-8. Wherever a number of characters counts it is a number of Unicode code points, and
/// a position counts them from 0. Bytes that are no UTF-8 count, and read, as one U+FFFD each.
namespace forms {

std::u32string toCodePoints(std::string_view text);
std::string fromCodePoints(std::u32string_view codePoints);

std::int32_t length(std::string_view text);

/// The first, or the last, `count` characters; the whole text when it is shorter.
std::string left(std::string_view text, std::int32_t count);
std::string right(std::string_view text, std::int32_t count);

/// The text without its last `count` characters; empty when it is shorter.
std::string withoutLast(std::string_view text, std::int32_t count);

/// Without the blanks (U+0020) at both ends; other white space stays.
std::string trimmed(std::string_view text);

/// Trimmed, and with one blank for each run of them.
std::string withSingleBlanks(std::string_view text);

/// Upper and lower case of the Latin letters of Latin-1 and Latin Extended-A, and of the Greek and
/// Cyrillic ones, where there is a single other case. Every other character is left as it is.
char32_t lowerCase(char32_t codePoint);
std::string lowerCase(std::string_view text);
std::string upperCase(std::string_view text);

bool equalsIgnoringCase(std::string_view one, std::string_view other);

/// Below 0, 0 or above 0, as `one` stands before, with or behind `other` when case is ignored.
int compareIgnoringCase(std::string_view one, std::string_view other);

/// `text` with every occurrence of `what`, which is not empty, replaced.
std::string replacedAll(std::string_view text, std::string_view what, std::string_view by);

}  // namespace forms
