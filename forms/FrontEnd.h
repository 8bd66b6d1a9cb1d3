#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "forms/Desktop.h"

namespace forms {

/// What draws forms on a screen and puts pages on paper. It is a module of its own, which a program
/// loads when the first window opens, so that all else runs without it.
class FrontEnd {
 public:
  virtual ~FrontEnd() = default;

  struct Windows {
    /// Where it is kept how the user left the windows; empty: nowhere.
    std::filesystem::path memory;
    /// Called when a form is on the screen and has done what it does on being activated.
    std::function<void()> formShown;
    /// Called where no window can be opened; ends the process.
    std::function<void()> noDisplay;
  };
  /// One at a time for each process, on the thread that made it.
  virtual std::unique_ptr<Desktop> makeDesktop(const Windows& windows) = 0;

  /// Lets the user choose a printer and prints the HTML page, over a desktop. Nothing is printed
  /// when he cancels. Raises Error when the printer refuses.
  virtual void printHtml(const std::string& title, const std::string& html) = 0;

  /// Writes the HTML page as a PDF, with or without a desktop. Raises Error when the file can't be
  /// written; then nothing is left in its place.
  virtual void writePdf(const std::filesystem::path& file, const std::string& title,
                        const std::string& html) = 0;
};

/// The one entry point of such a module: a C function without arguments that answers its front end,
/// which lives as long as the process.
inline constexpr const char* frontEndEntryPoint = "orlenaFrontEnd";
using FrontEndEntryPoint = FrontEnd* (*)();

}  // namespace forms
