#include <optional>

#include "base/MadeFolders.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/archive/Archive.h"
#include "trellisar/dialogs/Messages.h"
#include "trellisar/document/ProgramFile.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/document/SystemNames.h"
#include "trellisar/library/HostErrors.h"
#include "trellisar/operations/MainWindowOperations.h"
#include "trellisar/operations/OtherSystems.h"
#include "trellisar/operations/TimeText.h"
#include "trellisar/settings/SystemFolders.h"

namespace trellisar {
namespace {

namespace fs = std::filesystem;

bool isThere(const fs::path& file) {
  std::error_code error;
  return fs::exists(file, error);
}

}  // namespace

std::string MainWindowOperations::chooseFile() const {
  forms::FileDialog dialog;
  dialog.title = "Open System";
  dialog.filter = "Trellisar systems and archives (*.tsy;*.tsa)|*.tsy;*.tsa";
  dialog.initialFolder = GetDefaultSystemsFolder();
  dialog.defaultExtension = "tsy";
  return forms::Application::current().desktop().chooseFileToOpen(dialog);
}

std::shared_ptr<host::Document> MainWindowOperations::FileOpen(const std::string& strFile,
                                                               bool bUseRecovery,
                                                               bool& bCancelled) {
  note("FileOpen " + strFile);
  const std::string path = strFile.empty() ? chooseFile() : strFile;
  bCancelled = path.empty();
  if (bCancelled) return nullptr;
  fs::path file = forms::toMachinePath(path);
  // Who names a file that isn't there tells the user so.
  if (!strFile.empty() && !isThere(file)) return nullptr;
  try {
    if (forms::lowerCase(path).ends_with(archiveExtension)) file = unpack(file);
    bCancelled = file.empty();
    if (bCancelled) return nullptr;
    if (bUseRecovery && offerUnsavedOf(file)) return session_->document;
    const DocumentPtr data = readSystemFile(file, session_->library);
    forgetMissingProgram(*data, file.parent_path());
    // A template is where systems come from and never where one is saved to without a question.
    if (!bUseRecovery) data->ownFile.clear();
    openDocument(data);
    session_->recovery->begin(data);
    if (bUseRecovery) session_->preferences.remember(forms::fromMachinePath(file));
    if (bUseRecovery && session_->isBeforePerson()) data->showInUse();
    return session_->document;
  } catch (const host::Error& error) {
    forms::Application::current().messageBox(
        "The system could not be opened.\r\n\r\n" + error.description(), forms::Buttons::ok,
        forms::Icon::critical);
    return nullptr;
  }
}

void MainWindowOperations::openDocument(const DocumentPtr& data) {
  data->journal = session_->journal;
  data->panelSource = session_->panelSource;
  session_->recovery->end();
  if (session_->document) session_->document->Close();
  session_->document = std::make_shared<Document>(data);
}

std::optional<Overwriting> MainWindowOperations::mayOverwrite(const fs::path& file) const {
  if (session_->replacing == Replacing::always) return Overwriting::allowed;
  const Standing standing = standingAt(*session_->data(), file);
  if (standing == Standing::nothing || standing == Standing::own) return Overwriting::refused;
  const std::string path = file.string();
  const std::string name = "\"" + path + "\"";
  const bool isChanged = standing == Standing::changed;
  const std::string what =
      isChanged ? "Another program has changed the file " + name + " since the system was opened."
                : "Another system is in the file " + name + ".";
  if (session_->replacing == Replacing::never) {
    showFailure(what + " It was not replaced.");
    return std::nullopt;
  }
  // The first button is the default one, so the question is put so that Yes does no harm.
  const auto answer = forms::Application::current().messageBox(
      what + "\r\n\r\nDo you want to keep that " + (isChanged ? "file" : "system") +
          "? Yes keeps it and does not save; No replaces it.",
      forms::Buttons::yesNo, forms::Icon::question);
  return answer == forms::Answer::no ? std::optional(Overwriting::allowed) : std::nullopt;
}

void MainWindowOperations::save(const std::string& path, const std::string& application,
                                Overwriting overwriting) {
  DocumentData& document = *session_->data();
  const fs::path file = forms::toMachinePath(path);
  const Belongings replaced = belongingsOfOther(document, file);
  base::MadeFolders folders(file.parent_path());
  const std::string oldApplication = std::exchange(document.application, application);
  try {
    saveSystemFile(document, path, overwriting);
  } catch (const host::Error&) {
    document.application = oldApplication;
    throw;
  }
  folders.keep();
  replaced.remove();
  document.isModified = false;
  if (session_->isBeforePerson() && !document.use) document.showInUse();
  session_->preferences.remember(withSystemExtension(path));
}

bool MainWindowOperations::FileSaveAs(const std::string& strFile,
                                      const std::string& strApplication) {
  note("FileSaveAs " + strFile + ", " + strApplication);
  try {
    const std::string path = withSystemExtension(strFile);
    const std::optional<Overwriting> overwriting = mayOverwrite(forms::toMachinePath(path));
    if (!overwriting || !mayReplaceProgram(forms::toMachinePath(path))) {
      session_->recovery->saveFailed();
      return false;
    }
    raisingHostErrors([&] { save(path, strApplication, *overwriting); });
    return true;
  } catch (const host::Error& error) {
    session_->recovery->saveFailed();
    forms::Application::current().messageBox(
        "The system could not be saved.\r\n\r\n" + error.description(), forms::Buttons::ok,
        forms::Icon::critical);
    return false;
  }
}

void MainWindowOperations::DestroyDoc() {
  note("DestroyDoc");
  session_->recovery->end();
  if (session_->document) session_->document->Close();
  session_->document = nullptr;
  session_->openSystems.clear();
}

std::string MainWindowOperations::GetDefaultSystemsFolder() const {
  return defaultSystemsFolder(session_->preferences);
}

bool MainWindowOperations::CreateProjectFolder(const std::string& strFolder) {
  note("CreateProjectFolder " + strFolder);
  const std::string name = forms::fileNameOf(
      strFolder.ends_with('\\') ? strFolder.substr(0, strFolder.size() - 1) : strFolder);
  if (name.empty()) {
    showFailure("The system has no name, so its folder can't be made. Give the system a name.");
    return false;
  }
  if (const std::string problem = fileNameProblem(name); !problem.empty()) {
    showFailure(problem);
    return false;
  }
  const fs::path folder = (forms::toMachinePath(strFolder) / "").parent_path();
  const fs::path ownFile = session_->hasSystem() ? session_->data()->ownFile : fs::path();
  const fs::path foreign = foreignSystemIn(folder, ownFile);
  const bool isReplaced =
      session_->replacing == Replacing::always && foreign.stem() == folder.filename();
  if (!foreign.empty() && !isReplaced) {
    showFailure("The folder \"" + folder.string() + "\" holds another system, \"" +
                foreign.filename().string() +
                "\". Choose another name or another place for this system.");
    return false;
  }
  try {
    base::MadeFolders(folder).keep();
    return true;
  } catch (const base::FileError& error) {
    showFailure(error.what());
    return false;
  }
}

bool MainWindowOperations::CheckValidSystemName(std::string& strName) {
  const std::string problem = systemNameProblem(strName);
  if (!problem.empty()) {
    forms::Application::current().messageBox(problem, forms::Buttons::ok, forms::Icon::information);
  }
  return problem.empty();
}

void MainWindowOperations::ResetApplicationStatus(const std::string& strPath,
                                                  const std::string& strName) {
  note("ResetApplicationStatus " + strPath + ", " + strName);
  std::erase(session_->openSystems, std::pair(strPath, strName));
}

void MainWindowOperations::SetApplicationStatus(const std::string& strPath,
                                                const std::string& strName) {
  note("SetApplicationStatus " + strPath + ", " + strName);
  std::erase(session_->openSystems, std::pair(strPath, strName));
  session_->openSystems.emplace_back(strPath, strName);
}

std::int32_t MainWindowOperations::GetHSeconds(const std::string& strTime, std::int16_t) const {
  return hundredthsOfSecond(strTime);
}

}  // namespace trellisar
