#pragma once

#include <filesystem>
#include <optional>

namespace app {

/// Opens the host's main window and answers the exit status when it has closed.
int openMainWindow();

/// Opens the wizard's window, on a new system or on a saved one, and answers the exit status when
/// it has closed.
int openWizard(const std::optional<std::filesystem::path>& systemFile);

struct ScreenshotOptions {
  std::filesystem::path out;
  bool isDark = false;    // with a dark palette
  double fontPoints = 0;  // of the system's font; 0: as it is
};

/// Draws the wizard's steps in their states into PNG files. Answers the exit status.
int takeScreenshots(const ScreenshotOptions& options);

}  // namespace app
