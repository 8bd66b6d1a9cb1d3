#pragma once

#include <QtCore/QtGlobal>
#include <functional>
#include <vector>

#include "qt/WindowMemory.h"

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace qt {

class ShownForm;

/// What all windows of a desktop share.
struct Session {
  /// The forms on the screen, the one on top last.
  std::vector<ShownForm*> shown;

  /// Goes up with each box, dialog and form that is opened: what a press of the mouse began on a
  /// widget is over when one came in between.
  int interruptions = 0;

  WindowMemory memory;

  /// Called when a form has been shown and activated; may be empty.
  std::function<void()> formShown;

  /// Brings everything on the screen up to date with its form.
  void refreshAll() const;

  /// The window that a box or dialog is opened over; null when none is shown.
  QWidget* top() const;
};

}  // namespace qt
