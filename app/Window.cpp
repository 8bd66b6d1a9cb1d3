#include "app/Window.h"

#include <cstdlib>

#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/PagePrinter.h"
#include "app/RunReport.h"
#include "app/WindowModule.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "trellisar/window/AddIns.h"
#include "trellisar/window/MainForm.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// Nothing has begun yet that would have to end in order.
[[noreturn]] void endWithoutDisplay() {
  reportLine("The window needs a display, and there is none. \"orlena build\" works without one.");
  std::_Exit(exitStatus::wrongInput);
}

fs::path settingsFolder() { return trellisar::Preferences::usualFile().parent_path(); }

/// What a window of the program stands on. How the windows are left is kept beside the preferences.
struct Stage {
  explicit Stage(forms::FrontEnd& frontEnd)
      : desktop(
            frontEnd.makeDesktop({.memory = settingsFolder() / "windows.ini",
                                  .formShown = [this] { hadSystem = hadSystem || host.document(); },
                                  .noDisplay = endWithoutDisplay})) {}

  bool hadSystem = false;  // whether one was open when a form had been shown
  std::unique_ptr<forms::Desktop> desktop;
  forms::Application application{*desktop, forms::fromMachinePath(dataFolder())};
  trellisar::Host host{{.dataFolder = dataFolder(),
                        .preferencesFile = trellisar::Preferences::usualFile(),
                        .recovery = {.folder = settingsFolder() / "recovery"},
                        .printer = reportPrinter()}};
};

/// Null where the windows are not installed, which the user has been told then.
forms::FrontEnd* installedFrontEnd() {
  forms::FrontEnd* found = frontEnd();
  if (!found) {
    reportLine(
        "The windows are not installed: they come with the package \"orlena-desktop\". "
        "\"orlena build\" works without one.");
  }
  return found;
}

/// False when there is no such file, which the user has been told then.
bool isThere(const fs::path& file) {
  std::error_code failure;
  if (fs::exists(file, failure)) return true;
  reportLine("There is no system file \"" + file.string() + "\".");
  return false;
}

/// With backslashes.
std::string wholePath(const fs::path& file) {
  return forms::fromMachinePath(fs::absolute(file).lexically_normal());
}

}  // namespace

int openMainWindow(const std::optional<fs::path>& file) {
  forms::FrontEnd* windows = installedFrontEnd();
  if (!windows) return exitStatus::wrongInput;
  if (file && !isThere(*file)) return exitStatus::refused;
  Stage stage(*windows);
  stage.application.setTitle("Trellisar");
  trellisar::MainForm(stage.host, trellisar::createAddIns(componentsFile()))
      .run(file ? wholePath(*file) : "");
  trellisar::unloadComponents();
  return exitStatus::ok;
}

int openWizard(const std::optional<fs::path>& systemFile) {
  forms::FrontEnd* windows = installedFrontEnd();
  if (!windows) return exitStatus::wrongInput;
  Stage stage(*windows);
  AddIn addIn(stage.host);
  if (systemFile) {
    const bool isOpen = isThere(*systemFile) && stage.host.mainWindow()->FileOpen(
                                                    wholePath(*systemFile), /*bUseRecovery=*/true);
    if (!isOpen) return exitStatus::refused;
    addIn.runOnOpenSystem();
  } else if (stage.host.mainWindow()->offerUnsaved()) {
    addIn.runOnOpenSystem();
  } else {
    addIn.runOnNewSystem();
  }
  return stage.hadSystem ? exitStatus::ok : exitStatus::refused;
}

}  // namespace app
