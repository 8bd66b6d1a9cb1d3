#pragma once

#include "app/Window.h"

namespace app {

/// Draws the host's main window and its transfer, then runs the wizard in a window, goes through
/// its steps in each of their states and through the windows that they open, and writes a PNG of
/// every one to the folder. Answers the exit status.
int drawSteps(const ScreenshotOptions& options);

}  // namespace app
