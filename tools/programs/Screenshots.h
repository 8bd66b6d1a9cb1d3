#pragma once

#include <filesystem>

namespace tools {

struct ScreenshotOptions {
  std::filesystem::path out;
  bool isDark = false;    // with a dark palette
  double fontPoints = 0;  // of the system's font; 0: as it is
};

/// Draws the host's main window and its transfer, then runs the wizard in a window, goes through
/// its steps in each of their states and through the windows that they open, and writes a PNG of
/// every one to the folder. Raises std::runtime_error with what failed.
void drawWindows(const ScreenshotOptions& options);

}  // namespace tools
