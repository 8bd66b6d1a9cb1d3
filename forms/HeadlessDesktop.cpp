#include "forms/HeadlessDesktop.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "forms/Text.h"

namespace forms {
namespace {

constexpr Twips characterWidth = 90;
constexpr Twips textLineHeight = 195;

/// The lines that a text takes, and the characters in the longest one.
struct Lines {
  Twips count = 0;
  Twips longest = 0;

  void add(Twips characters) {
    ++count;
    longest = std::max(longest, characters);
  }
};

/// Takes what stands before the first separator off the text, and the separator with it.
std::string_view takeUntil(std::string_view& text, char separator) {
  const std::string_view part = text.substr(0, text.find(separator));
  text.remove_prefix(std::min(text.size(), part.size() + 1));
  return part;
}

void breakIntoLines(std::string_view paragraph, Twips limit, Lines& lines) {
  if (length(paragraph) <= limit) return lines.add(length(paragraph));
  Twips used = 0;
  while (!paragraph.empty()) {
    const Twips word = length(takeUntil(paragraph, ' '));
    if (used > 0 && used + 1 + word > limit) {
      lines.add(used);
      used = 0;
    }
    used += (used > 0 ? 1 : 0) + word;
  }
  lines.add(used);
}

}  // namespace

void HeadlessDesktop::processEvents() {
  while (!tasks_.empty()) {
    const auto task = std::move(tasks_.front());
    tasks_.pop_front();
    task();
  }
}

void HeadlessDesktop::runAfter(std::chrono::milliseconds wait, std::function<void()> task) {
  timed_.emplace(now_ + wait, std::move(task));
}

void HeadlessDesktop::pass(std::chrono::milliseconds time) {
  const auto end = now_ + time;
  while (!timed_.empty() && timed_.begin()->first <= end) {
    const auto due = timed_.extract(timed_.begin());
    now_ = due.key();
    due.mapped()();
  }
  now_ = end;
}

Size HeadlessDesktop::textSize(const std::string& text, const Font& font, Twips width) const {
  const double scale = font.points / Font().points;
  const auto character = static_cast<Twips>(characterWidth * scale);
  const Twips limit = width > 0 ? width / character : std::numeric_limits<Twips>::max();
  Lines lines;
  std::string_view left = text;
  do {
    std::string_view paragraph = takeUntil(left, '\n');
    if (paragraph.ends_with('\r')) paragraph.remove_suffix(1);
    breakIntoLines(paragraph, limit, lines);
  } while (!left.empty());
  return {lines.longest * character, lines.count * static_cast<Twips>(textLineHeight * scale)};
}

}  // namespace forms
