#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Fault.h"

namespace base {

/// Puts blanks in the place of what people write into JSON and what is none, comments and commas
/// with nothing behind them, and tells each. Everything else keeps its place.
void blankSlips(std::string& text, std::vector<Fault>& faults);

/// The number of the line, from 1, in which the byte stands.
std::size_t lineAt(std::string_view text, std::size_t byte);

/// In the user's words what the parser says of a text that it can't read.
std::string inPlainWords(const std::string& parserSays);

}  // namespace base
