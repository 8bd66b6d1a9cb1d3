#include "base/JsonSlips.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace base {
namespace {

/// The place behind a text that begins at `at`. One that is not closed ends with its line: the
/// parser tells it.
std::size_t behindText(std::string_view text, std::size_t at) {
  for (++at; at < text.size() && text[at] != '\n'; ++at) {
    if (text[at] == '"') return at + 1;
    if (text[at] == '\\') ++at;
  }
  return std::min(at, text.size());
}

/// The place behind a comment that begins at `at`, or `at` where none does.
std::size_t behindComment(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  if (rest.starts_with("//") || rest.starts_with('#')) {
    return std::min(text.find('\n', at), text.size());
  }
  if (!rest.starts_with("/*")) return at;
  const std::size_t end = text.find("*/", at + 2);
  return end == std::string_view::npos ? text.size() : end + 2;
}

/// Calls `visit` with each place of the text that is outside of its texts in quotation marks.
template <typename Visit>
void eachOutside(const std::string& text, Visit visit) {
  for (std::size_t at = 0; at < text.size();) {
    if (text[at] == '"') {
      at = behindText(text, at);
    } else {
      visit(at++);
    }
  }
}

void blankComments(std::string& text, std::vector<Fault>& faults) {
  eachOutside(text, [&](std::size_t at) {
    const std::size_t end = behindComment(text, at);
    if (end == at) return;
    faults.push_back({.what = "there are no comments in JSON", .line = lineAt(text, at)});
    std::replace_if(
        text.begin() + static_cast<std::ptrdiff_t>(at),
        text.begin() + static_cast<std::ptrdiff_t>(end), [](char c) { return c != '\n'; }, ' ');
  });
}

void blankCommas(std::string& text, std::vector<Fault>& faults) {
  eachOutside(text, [&](std::size_t at) {
    if (text[at] != ',') return;
    const std::size_t next = text.find_first_not_of(" \t\r\n", at + 1);
    if (next == std::string::npos ||
        std::string_view("}],").find(text[next]) == std::string_view::npos) {
      return;
    }
    faults.push_back(
        {.what = "a comma with nothing behind it; take it away", .line = lineAt(text, at)});
    text[at] = ' ';
  });
}

}  // namespace

void blankSlips(std::string& text, std::vector<Fault>& faults) {
  blankComments(text, faults);
  blankCommas(text, faults);
}

std::size_t lineAt(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, byte);
  return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

std::string inPlainWords(const std::string& parserSays) {
  static constexpr std::pair<std::string_view, const char*> words[] = {
      {"unexpected end of input", "the file ends too early: a bracket or a brace is not closed"},
      {"expected end of input", "nothing may stand behind the closing brace"},
      {"''", "texts and keys stand in double quotation marks"},
      {"\xE2'", "texts and keys stand in straight quotation marks"},
      {"ill-formed UTF-8", "the text is not written in UTF-8"},
      {"control character", "a text ends on its line, with a quotation mark"},
      {"missing closing quote", "a text ends on its line, with a quotation mark"},
      {"number overflow", "the number is too large"},
      {"object key", "a key in quotation marks is missing here"},
      {"object separator", "a colon is missing behind the key"},
      {"parsing object -", "a comma is missing before this"},
      {"parsing array -", "a comma is missing before this"},
      {"invalid literal", "texts stand in quotation marks; true, false and null in small letters"},
  };
  for (const auto& [sign, meaning] : words) {
    if (parserSays.find(sign) != std::string::npos) return meaning;
  }
  const std::size_t start = parserSays.find(": ");
  return start == std::string::npos ? parserSays : parserSays.substr(start + 2);
}

}  // namespace base
