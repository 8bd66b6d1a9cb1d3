#pragma once

#include <filesystem>
#include <string>

/// HTML pages on paper. Both need a QtDesktop, or an OffscreenApplication.
namespace qt {

/// Lets the user choose a printer. Nothing is printed when he cancels. Raises forms::Error when
/// the printer refuses.
void printHtml(const std::string& title, const std::string& html);

/// Raises forms::Error when the file can't be written; then nothing is left in its place.
void writePdf(const std::filesystem::path& file, const std::string& title, const std::string& html);

/// What texts need to be laid out where nothing is shown.
class OffscreenApplication {
 public:
  OffscreenApplication();
  ~OffscreenApplication();
  OffscreenApplication(const OffscreenApplication&) = delete;
  OffscreenApplication& operator=(const OffscreenApplication&) = delete;

 private:
  struct Impl;
  Impl* impl_;
};

}  // namespace qt
