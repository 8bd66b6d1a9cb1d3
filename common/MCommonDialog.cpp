#include "common/MCommonDialog.h"

#include "forms/Application.h"
#include "forms/Paths.h"

namespace common {
namespace {

constexpr const char* sAllFiles = "All Files (*.*)| *.*";

std::string WithAllFiles(std::string sFilter) {
  if (sFilter.empty()) return sAllFiles;
  if (sFilter.find("*.*") != std::string::npos) return sFilter;
  return sFilter + "|" + sAllFiles;
}

}  // namespace

bool ShowSaveFileDialog(SaveFileDialog& dialog) {
  forms::Application& application = forms::Application::current();
  const std::string sCurrentFolder = application.currentFolder();
  dialog.sFileName =
      application.desktop().chooseFileToSave({.ownerHandle = dialog.hwndOwner,
                                              .title = {},
                                              .fileName = dialog.sFileName,
                                              .filter = WithAllFiles(dialog.sFilter),
                                              .initialFolder = dialog.sInitialDir,
                                              .defaultExtension = dialog.sDefaultExt,
                                              .asksBeforeReplacing = !dialog.bNoOverwritePrompt});
  dialog.sFileTitle = forms::fileNameOf(dialog.sFileName);
  application.changeFolder(sCurrentFolder);
  return !dialog.sFileName.empty();
}

}  // namespace common
