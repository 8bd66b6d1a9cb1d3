#include "base/FileIO.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/archive/Archive.h"
#include "trellisar/dialogs/DoneDialog.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/operations/MainWindowOperations.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

std::string chooseArchive(std::int32_t owner, const DocumentData& document) {
  forms::FileDialog dialog;
  dialog.ownerHandle = owner;
  dialog.title = "Export System";
  dialog.fileName = document.name + archiveExtension;
  dialog.filter = "Trellisar archives (*.tsa)|*.tsa";
  dialog.initialFolder = document.folder;
  dialog.defaultExtension = "tsa";
  const std::string path = forms::Application::current().desktop().chooseFileToSave(dialog);
  const bool hasExtension = forms::lowerCase(path).ends_with(archiveExtension);
  return path.empty() || hasExtension ? path : path + archiveExtension;
}

}  // namespace

void MainWindowOperations::Export(std::int32_t& hwnd) {
  note("Export");
  const DocumentData& document = *session_->data();
  fs::path file = session_->exportFile;
  if (file.empty()) {
    const std::string chosen = chooseArchive(hwnd, document);
    if (chosen.empty()) return;
    file = forms::toMachinePath(chosen);
  } else if (std::error_code error;
             session_->replacing != Replacing::always && fs::exists(file, error)) {
    showFailure("The file \"" + file.string() + "\" is there already. It was not replaced.");
    return;
  }
  try {
    raisingHostErrors([&] { base::replaceFile(file, archiveOf(document)); });
    session_->exportedFile = file;
    DoneDialog("Export System", "Exported to \"" + file.string() + "\".").run();
  } catch (const host::Error& error) {
    forms::Application::current().messageBox(
        "The system could not be exported.\r\n\r\n" + error.description(), forms::Buttons::ok,
        forms::Icon::critical);
  }
}

fs::path MainWindowOperations::unpack(const fs::path& archive) const {
  forms::FolderDialog dialog;
  dialog.title = "Choose the folder in which the system of the archive gets its own folder:";
  dialog.initialFolder = GetDefaultSystemsFolder();
  const std::string parent = forms::Application::current().desktop().chooseFolder(dialog);
  return parent.empty() ? fs::path() : unpackArchive(archive, forms::toMachinePath(parent));
}

}  // namespace trellisar
