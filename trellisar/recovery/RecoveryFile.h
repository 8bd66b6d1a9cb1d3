#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "host/UnsavedWork.h"
#include "trellisar/document/DocumentData.h"

/// What is kept of a system while it has answers that are not saved: docs/recovery-file.md.
namespace trellisar {

struct UnsavedSystem {
  std::string name;
  std::string folder;             // with backslashes
  std::filesystem::path ownFile;  // empty: it was never saved
  std::string ownDigest;          // of the content that ownFile had when it was read or saved
  host::Whereabouts whereabouts;
  std::string system;  // the text that its file would have, but for the program
};

/// The system with the answers in it that only the add-in knows. The document stays as it is.
UnsavedSystem unsavedSystem(const DocumentData& document, const host::UnsavedAnswers& answers);

std::string recoveryFileText(const UnsavedSystem& unsaved);

/// Raises base::Error: what can't be read, is damaged, or is of another version.
UnsavedSystem readRecoveryFile(const std::filesystem::path& file);

/// The system as it was, modified. Raises host::Error errBadFile where its text is none.
DocumentPtr documentOf(const UnsavedSystem& unsaved,
                       const std::shared_ptr<const DeviceLibrary>& library);

}  // namespace trellisar
