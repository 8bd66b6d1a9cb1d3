#pragma once

#include <string>

namespace forms {

class Container;

/// What a person finds on a page, a line for each control in the order of reading: its name, kind
/// and text, and the words "checked", "chosen", "hidden", "disabled" and "tab stop" where its own
/// flags say so. What a container holds is indented below it.
std::string listing(const Container& page);

}  // namespace forms
