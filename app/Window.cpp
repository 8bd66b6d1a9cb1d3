#include "app/Window.h"

#include "app/ExitStatus.h"
#include "app/RunReport.h"

#ifdef ORLENA_QT

#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/QtReportPrinter.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/Paths.h"
#include "qt/QtDesktop.h"
#include "trellisar/window/AddIns.h"
#include "trellisar/window/MainForm.h"

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

/// What a window of the program stands on. How the windows are left is kept beside the preferences.
template <typename Desktop>
struct Stage {
  Stage() {
    desktop.keepWindowsIn(trellisar::Preferences::usualFile().parent_path() / "windows.ini");
  }

  char name[7] = "orlena";
  char* arguments[2] = {name, nullptr};
  Desktop desktop{1, arguments};
  forms::Application application{desktop, forms::fromMachinePath(dataFolder())};
  trellisar::Host host{{.dataFolder = dataFolder(),
                        .preferencesFile = trellisar::Preferences::usualFile(),
                        .printer = reportPrinter()}};
};

bool canOpenWindows() {
  if (qt::hasDisplay()) return true;
  reportLine("The window needs a display, and there is none. \"orlena build\" works without one.");
  return false;
}

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

int openMainWindow() {
  if (!canOpenWindows()) return exitStatus::wrongInput;
  Stage<qt::QtDesktop> stage;
  stage.application.setTitle("Trellisar");
  trellisar::MainForm(stage.host, trellisar::createAddIns(componentsFile())).run();
  trellisar::unloadComponents();
  return exitStatus::ok;
}

int openWizard(const std::optional<fs::path>& systemFile) {
  if (!canOpenWindows()) return exitStatus::wrongInput;
  Stage<WizardDesktop> stage;
  stage.desktop.watch(stage.host);
  AddIn addIn(stage.host);
  if (systemFile) {
    if (!open(stage.host, *systemFile)) return exitStatus::refused;
    addIn.runOnOpenSystem();
  } else {
    addIn.runOnNewSystem();
  }
  return stage.desktop.hasStarted() ? exitStatus::ok : exitStatus::refused;
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

int openMainWindow() { return refuseWithoutWindow(); }

int openWizard(const std::optional<std::filesystem::path>&) { return refuseWithoutWindow(); }

}  // namespace app

#endif
