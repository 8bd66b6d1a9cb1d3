#pragma once

#include <filesystem>
#include <string>

/// HTML pages on paper.
namespace qt {

/// Lets the user choose a printer, over a QtDesktop. Nothing is printed when he cancels. Raises
/// forms::Error when the printer refuses.
void printHtml(const std::string& title, const std::string& html);

/// With or without a QtDesktop. Raises forms::Error when the file can't be written; then nothing is
/// left in its place.
void writePdf(const std::filesystem::path& file, const std::string& title, const std::string& html);

}  // namespace qt
