#include "app/Window.h"

#include "app/ExitStatus.h"
#include "app/Report.h"

#ifdef ORLENA_QT

#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/Screenshots.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/Paths.h"
#include "qt/QtDesktop.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// The desktop of a person, which sees whether the wizard got a system to work on.
class WizardDesktop : public qt::QtDesktop {
 public:
  using QtDesktop::QtDesktop;

  void watch(const trellisar::Host& host) { host_ = &host; }
  bool hasStarted() const { return started_; }

  void runModal(forms::Form& form, forms::Form* owner) override {
    // Connected last, so that the wizard's own activation, which opens the system, has run by then.
    const auto subscription = form.activated.listen([this] {
      if (host_ && host_->document()) started_ = true;
    });
    QtDesktop::runModal(form, owner);
  }

 private:
  const trellisar::Host* host_ = nullptr;
  bool started_ = false;
};

/// False when the file can't be opened, which the user has been told then.
bool open(trellisar::Host& host, const fs::path& systemFile) {
  std::error_code failure;
  if (!fs::exists(systemFile, failure)) {
    reportLine("There is no system file \"" + systemFile.string() + "\".");
    return false;
  }
  const std::string path = forms::fromMachinePath(fs::absolute(systemFile).lexically_normal());
  return host.mainWindow()->FileOpen(path, /*bUseRecovery=*/true) != nullptr;
}

}  // namespace

int openWizard(const std::optional<fs::path>& systemFile) {
  if (!qt::hasDisplay()) {
    reportLine(
        "The window needs a display, and there is none. \"orlena build\" works without one.");
    return exitStatus::wrongInput;
  }
  char name[] = "orlena";
  char* arguments[] = {name, nullptr};
  WizardDesktop desktop(1, arguments);
  forms::Application application(desktop, forms::fromMachinePath(dataFolder()));
  trellisar::Host host(
      {.dataFolder = dataFolder(), .preferencesFile = trellisar::Preferences::usualFile()});
  desktop.watch(host);
  AddIn addIn(host);
  if (systemFile) {
    if (!open(host, *systemFile)) return exitStatus::refused;
    addIn.runOnOpenSystem();
  } else {
    addIn.runOnNewSystem();
  }
  return desktop.hasStarted() ? exitStatus::ok : exitStatus::refused;
}

int takeScreenshots(const ScreenshotOptions& options) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  return drawSteps(options.out);
}

}  // namespace app

#else

namespace app {
namespace {

int refuseWithoutWindow() {
  reportLine("This program was built without its window. \"orlena build\" works without one.");
  return exitStatus::wrongInput;
}

}  // namespace

int openWizard(const std::optional<std::filesystem::path>&) { return refuseWithoutWindow(); }

int takeScreenshots(const ScreenshotOptions&) { return refuseWithoutWindow(); }

}  // namespace app

#endif
