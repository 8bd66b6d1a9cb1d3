#pragma once

#include <filesystem>
#include <string>

namespace trellisar {

/// Puts reports on paper, where a host has a screen and printers.
class ReportPrinter {
 public:
  virtual ~ReportPrinter() = default;

  /// Lets the user choose a printer and prints the HTML page. Raises host::Error when it can't.
  virtual void print(const std::string& title, const std::string& html) = 0;

  /// Writes the HTML page as a PDF. Raises host::Error errFile when the file can't be written.
  virtual void writePdf(const std::filesystem::path& file, const std::string& title,
                        const std::string& html) = 0;
};

}  // namespace trellisar
