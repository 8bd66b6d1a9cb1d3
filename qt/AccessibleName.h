#pragma once

#include <string>

namespace forms {
class Control;
}

namespace qt {

/// What a screen reader calls a control: the name it was given, else its own words, else those of
/// the label that stands to the left of it or above it, else its tool tip.
std::string nameOf(const forms::Control& control);

}  // namespace qt
