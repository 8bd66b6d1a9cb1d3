#include <string>

#include "forms/Text.h"
#include "trellisar/compile/Explained.h"
#include "trellisar/compile/Listing.h"

namespace trellisar {
namespace {

constexpr std::int32_t column = 60;
constexpr std::int32_t width = 100;

constexpr const char* legend =
    "\nOn the right stand the answers without which a line would not be there, or not so. Every room "
    "has\nthe lines without one.\n";

/// What stands in the second column, from its first line to its last.
std::vector<std::string> columnOf(const Reason& reason) {
  if (reason.isLeftOver) return {"(left behind)"};
  std::vector<std::string> lines;
  for (const std::string& answer : reason.nearest) {
    if (lines.empty()) {
      lines.push_back(answer);
    } else if (column + forms::length(lines.back() + ", " + answer) > width) {
      lines.back() += ",";
      lines.push_back(answer);
    } else {
      lines.back() += ", " + answer;
    }
  }
  return lines;
}

std::string padded(const std::string& text) {
  const std::int32_t missing = column - forms::length(text);
  return text + std::string(static_cast<std::size_t>(std::max(0, missing)), ' ');
}

/// A line that reaches into the second column stands alone.
std::string besides(const std::string& text, const std::vector<std::string>& answers) {
  const bool fits = forms::length(text) <= column - 2 && text.find('\n') == std::string::npos;
  std::string all = fits ? "" : text + "\n";
  std::string first = fits ? text : "";
  for (const std::string& line : answers) {
    all += padded(first) + line + "\n";
    first.clear();
  }
  return all;
}

}  // namespace

std::string explainedText(const DocumentData& document, const Reasons& reasons) {
  std::string text;
  bool isInHead = true;
  for (const TextLine& line : readableLines(document)) {
    if (isInHead && line.text.empty()) text += legend;
    isInHead = isInHead && !line.text.empty();
    const auto reason = reasons.find(line.piece);
    const auto answers =
        reason == reasons.end() ? std::vector<std::string>() : columnOf(reason->second);
    text += answers.empty() ? line.text + "\n" : besides(line.text, answers);
  }
  return text;
}

}  // namespace trellisar
