#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "forms/ImageList.h"
#include "trellisar/operations/Communication.h"
#include "trellisar/operations/MainWindowOperations.h"
#include "trellisar/operations/Session.h"
#include "trellisar/window/Pictures.h"

namespace trellisar {

struct HostOptions {
  /// Holds "library", "pictures", "PanelTemplates" and "TemplateSystems".
  std::filesystem::path dataFolder = {};
  /// A device library that stands in for the shipped one; shared between hosts that run side by
  /// side or one after the other. Nothing: the one of the data folder.
  std::shared_ptr<const DeviceLibrary> library = {};
  /// Where the user's preferences are kept; empty: nowhere, and there are none.
  std::filesystem::path preferencesFile = {};
  /// Where what is not saved is kept; without a folder nowhere.
  RecoveryOptions recovery = {};
  Replacing replacing = Replacing::ask;
  /// The archive that an export writes, without asking. It replaces a file only with
  /// Replacing::always. Empty: the user chooses.
  std::filesystem::path exportFile = {};
  /// Prints the reports; outlives the host. Nothing: they can be saved as HTML alone.
  ReportPrinter* printer = nullptr;
};

/// One host of one thread, from which everything that an add-in is handed comes. Several hosts live
/// side by side, each with an application of its own.
///
///     trellisar::Host host({.dataFolder = data});
///     addIn->IAddInContract_Load(host.document(), host.libraryManager(), host.communication(),
///                                host.smallPictures(), host.largePictures(), host.mainWindow());
class Host {
 public:
  /// Registers the classes that add-ins have made, and reads the index of the library. Raises what
  /// DeviceLibrary raises.
  explicit Host(const HostOptions& options);

  /// The open system; nothing when there is none.
  std::shared_ptr<Document> document() const {
    return session_->hasSystem() ? session_->document : nullptr;
  }
  std::shared_ptr<const DeviceLibrary> library() const { return session_->library; }
  std::shared_ptr<LibraryManager> libraryManager() const { return session_->libraryManager; }
  std::shared_ptr<Communication> communication() const { return communication_; }
  std::shared_ptr<MainWindowOperations> mainWindow() const { return mainWindow_; }
  const forms::ImageList& smallPictures() { return pictures().small; }
  const forms::ImageList& largePictures() { return pictures().large; }

  Preferences& preferences() { return session_->preferences; }
  /// Folder and name of each open system, as the add-in registered them.
  const std::vector<std::pair<std::string, std::string>>& openSystems() const {
    return session_->openSystems;
  }
  /// The archive that was exported last; empty: none was.
  const std::filesystem::path& exportedFile() const { return session_->exportedFile; }
  Journal& journal() { return *session_->journal; }

 private:
  const Pictures& pictures();

  std::filesystem::path dataFolder_;
  std::shared_ptr<Session> session_;
  std::shared_ptr<MainWindowOperations> mainWindow_;
  std::shared_ptr<Communication> communication_;
  std::optional<Pictures> pictures_;
};

}  // namespace trellisar
