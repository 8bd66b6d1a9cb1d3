#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/CommObject.h"
#include "trellisar/document/Journal.h"
#include "trellisar/library/DeviceLibrary.h"
#include "trellisar/objects/Document.h"
#include "trellisar/objects/LibraryObjects.h"
#include "trellisar/panels/PanelState.h"
#include "trellisar/recovery/RecoveryKeeper.h"
#include "trellisar/reports/ReportPrinter.h"
#include "trellisar/settings/Preferences.h"

namespace trellisar {

/// What happens to a system that stands where another is to be saved.
enum class Replacing {
  ask,     // the user decides
  never,   // it stays, and the save fails
  always,  // it is replaced
};

/// What the parts of one host share.
struct Session {
  std::shared_ptr<const DeviceLibrary> library;
  std::shared_ptr<LibraryManager> libraryManager;
  std::shared_ptr<PanelSource> panelSource = std::make_shared<PanelSource>();
  Preferences preferences;
  std::weak_ptr<host::CommObject> communication;
  Replacing replacing = Replacing::ask;
  std::shared_ptr<RecoveryKeeper> recovery;
  ReportPrinter* printer = nullptr;    // outlives the host; nothing: it can't print
  std::filesystem::path exportFile;    // where an export goes; empty: the user is asked
  std::filesystem::path exportedFile;  // the archive that was written last; empty: none
  std::shared_ptr<Document> document;  // the open system; nothing when there is none
  std::vector<std::pair<std::string, std::string>> openSystems;  // folder and name, as registered
  std::shared_ptr<Journal> journal = std::make_shared<Journal>();

  /// The document's data; raises host::Error errDocumentClosed when no system is open.
  const DocumentPtr& data() const;
  bool isBeforePerson() const { return replacing == Replacing::ask; }
  bool hasSystem() const { return document && document->isOpen(); }
};

}  // namespace trellisar
