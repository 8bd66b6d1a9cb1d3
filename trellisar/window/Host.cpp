#include "trellisar/window/Host.h"

#include "forms/Application.h"
#include "forms/Components.h"
#include "forms/Paths.h"
#include "host/Numbers.h"
#include "trellisar/objects/DeviceObject.h"
#include "trellisar/objects/ProgramObjects.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

void registerDocumentObjects() {
  forms::registerObject(host::progIDStep, [] { return std::make_shared<StepObject>(); });
  forms::registerObject(host::progIDDevice, [] { return std::make_shared<DeviceObject>(); });
}

/// Before a window is open, nobody has given the application its title.
void tellPreferences(const std::string& problem) {
  forms::Application::current().messageBox(problem, forms::Buttons::ok, forms::Icon::exclamation,
                                           "Preferences");
}

}  // namespace

Host::Host(const HostOptions& options)
    : dataFolder_(fs::absolute(options.dataFolder)), session_(std::make_shared<Session>()) {
  registerDocumentObjects();
  session_->library = options.library;
  if (!session_->library) {
    session_->library = std::make_shared<DeviceLibrary>(dataFolder_ / "library");
  }
  session_->libraryManager = std::make_shared<LibraryManager>(
      session_->library, forms::fromMachinePath(dataFolder_ / "pictures"));
  session_->panelSource->templates = dataFolder_ / "PanelTemplates";
  session_->preferences = Preferences(options.preferencesFile, tellPreferences);
  session_->recovery = std::make_shared<RecoveryKeeper>(options.recovery);
  session_->replacing = options.replacing;
  session_->exportFile = options.exportFile.empty() ? fs::path() : fs::absolute(options.exportFile);
  session_->printer = options.printer;
  mainWindow_ = std::make_shared<MainWindowOperations>(session_);
  communication_ = std::make_shared<Communication>(session_);
  session_->communication = communication_;
}

const Pictures& Host::pictures() {
  if (!pictures_) pictures_ = readPictures(dataFolder_ / "pictures");
  return *pictures_;
}

}  // namespace trellisar
