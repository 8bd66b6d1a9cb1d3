#include "qt/Keyboard.h"

#include "forms/Control.h"

namespace qt {
namespace {

constexpr int lastCharacterKey = 0xFFFF;  // the numbers of Qt's keys without a character lie above

std::int16_t codeOf(int key) {
  switch (key) {
    case Qt::Key_Backspace:
      return forms::keys::backspace;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return forms::keys::tab;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return forms::keys::enter;
    case Qt::Key_Escape:
      return forms::keys::escape;
    case Qt::Key_Space:
      return forms::keys::space;
    case Qt::Key_Left:
      return forms::keys::left;
    case Qt::Key_Up:
      return forms::keys::up;
    case Qt::Key_Right:
      return forms::keys::right;
    case Qt::Key_Down:
      return forms::keys::down;
    case Qt::Key_Delete:
      return forms::keys::del;
    default:
      break;
  }
  if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
    return static_cast<std::int16_t>(forms::keys::f1 + (key - Qt::Key_F1));
  }
  const bool character = key > 0 && key <= lastCharacterKey && QChar(key).isLetterOrNumber();
  return character ? static_cast<std::int16_t>(key) : std::int16_t{0};
}

std::int16_t shiftOf(const QKeyEvent& event) {
  int shift = 0;
  if (event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab) shift += 1;
  if (event.modifiers().testFlag(Qt::ControlModifier)) shift += 2;
  if (event.modifiers().testFlag(Qt::AltModifier)) shift += 4;
  return static_cast<std::int16_t>(shift);
}

}  // namespace

FormsKey formsKey(const QKeyEvent& event) { return {codeOf(event.key()), shiftOf(event)}; }

bool isTyping(const QKeyEvent& event) {
  if (event.text().isEmpty() || !event.text().at(0).isPrint()) return false;
  const auto chord = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
  // the key AltGr reports Control and Alt together on some systems
  return !chord || chord == (Qt::ControlModifier | Qt::AltModifier);
}

bool isAccelerator(const QKeyEvent& event) {
  const int key = event.key();
  return event.modifiers().testFlag(Qt::AltModifier) &&
         !event.modifiers().testFlag(Qt::ControlModifier) && key > 0 && key <= lastCharacterKey &&
         QChar(key).isLetterOrNumber();
}

}  // namespace qt
