#include "common/modHTMLHelp.h"

#include <string>

#include "common/CommonFunctions.h"
#include "forms/Application.h"
#include "forms/Error.h"
#include "forms/Form.h"
#include "forms/Numbers.h"
#include "forms/Paths.h"

namespace common {
namespace {

constexpr std::int16_t helpOfActiveForm = 0;

void TellHelpFailure(const std::string& sMessage) {
  forms::Application::current().messageBox(sMessage, forms::Buttons::ok, forms::Icon::exclamation);
}

}  // namespace

void ShowHelpTopic(std::int32_t hwnd, std::int16_t iContextID) {
  forms::Application& application = forms::Application::current();
  const std::string& sHelpFile = application.helpFile();
  if (sHelpFile.empty()) {
    TellHelpFailure("There is no help file set for this application.");
    return;
  }
  if (iContextID == helpOfActiveForm) {
    const forms::Form* frmActive = application.activeForm();
    if (!frmActive) return;
    iContextID = frmActive->helpContext();
  }
  if (application.desktop().showHelp(hwnd, sHelpFile, iContextID) <= 0) {
    TellHelpFailure("Error displaying Help Topic (" + forms::decimal(iContextID) +
                    ") for help file: " + sHelpFile + vbCrLf + "Current folder: " +
                    forms::toMachinePath(application.currentFolder()).string());
  }
}

bool CloseAllHelp() {
  forms::Application& application = forms::Application::current();
  try {
    application.changeFolder(application.folder());
    application.desktop().closeAllHelp();
  } catch (const forms::Error& error) {
    application.messageBox(std::string("Failed to initialize help system.") + vbCrLf +
                           error.description());
    return false;
  }
  return true;
}

}  // namespace common
