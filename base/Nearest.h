#pragma once

#include <string>
#include <vector>

namespace base {

/// The known texts, for one that is none of them: all where they are few, else those that are most
/// like it and how many more there are; and which one was probably meant.
///
///     "unused", "power off", "continue"; did you mean "unused"?
///     "Bravonne P2200", "Bravonne P3300", "Orvistel F42" and 20 more
std::string among(const std::string& text, const std::vector<std::string>& known);

/// The texts in quotation marks, with commas between.
std::string quoted(const std::vector<std::string>& texts);
std::string quoted(const std::string& text);

}  // namespace base
