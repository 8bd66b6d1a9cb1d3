#pragma once

#include <QtGui/QKeyEvent>
#include <cstdint>

namespace qt {

/// A key as forms number it; code 0 for one that they do not know.
struct FormsKey {
  std::int16_t code = 0;
  std::int16_t shift = 0;
};

FormsKey formsKey(const QKeyEvent& event);

/// Whether the key types a character.
bool isTyping(const QKeyEvent& event);

/// Whether the key, with Alt, is an accelerator of a form.
bool isAccelerator(const QKeyEvent& event);

}  // namespace qt
