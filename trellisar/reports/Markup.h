#pragma once

#include <string>

namespace trellisar {

/// A text as it stands in HTML and SVG, without control characters other than line ends and tabs.
std::string escapedMarkup(const std::string& text);

/// A picture as the source of an image in a page that needs no other file.
std::string svgAsSource(const std::string& svg);

}  // namespace trellisar
