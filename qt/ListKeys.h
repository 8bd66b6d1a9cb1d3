#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QString>
#include <QtGui/QKeyEvent>
#include <cstdint>
#include <functional>

namespace qt {

/// The keys that go to a place in a list, beside the arrows, which are the form's: Home, End, Page
/// Up and Down, and the first letters of an item.
class ListKeys {
 public:
  struct List {
    std::int32_t count;
    std::int32_t current;  // -1: none
    std::int32_t perPage;
    std::function<QString(std::int32_t)> text;
  };

  /// The place that the key goes to; -1 when it goes to none.
  std::int32_t placeFor(const QKeyEvent& event, const List& list);

 private:
  std::int32_t placeOfTyped(const QString& character, const List& list);

  QString typed_;
  QElapsedTimer sinceTyped_;
};

}  // namespace qt
