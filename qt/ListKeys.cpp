#include "qt/ListKeys.h"

#include <algorithm>

#include "qt/Keyboard.h"

namespace qt {
namespace {

constexpr qint64 longestPause = 1000;  // milliseconds between letters of one word

}  // namespace

std::int32_t ListKeys::placeFor(const QKeyEvent& event, const List& list) {
  if (list.count == 0) return -1;
  const std::int32_t last = list.count - 1;
  switch (event.key()) {
    case Qt::Key_Home:
      return 0;
    case Qt::Key_End:
      return last;
    case Qt::Key_PageUp:
      return std::clamp(list.current - list.perPage, 0, last);
    case Qt::Key_PageDown:
      return std::clamp(list.current + list.perPage, 0, last);
    case Qt::Key_Space:
      return -1;
    default:
      return isTyping(event) ? placeOfTyped(event.text(), list) : -1;
  }
}

/// One letter, also when it is repeated, goes to the next item that starts with it; a word to the
/// first from here on.
std::int32_t ListKeys::placeOfTyped(const QString& character, const List& list) {
  if (!sinceTyped_.isValid() || sinceTyped_.elapsed() > longestPause) typed_.clear();
  sinceTyped_.start();
  if (typed_ != character) typed_ += character;
  const std::int32_t skipped = typed_.size() == 1 ? 1 : 0;
  for (std::int32_t i = 0; i < list.count; ++i) {
    const std::int32_t place = (std::max(list.current, 0) + skipped + i) % list.count;
    if (list.text(place).startsWith(typed_, Qt::CaseInsensitive)) return place;
  }
  return -1;
}

}  // namespace qt
