#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "trellisar/DocumentData.h"

/// System files, ".tsy". Their form is in docs/system-file.md.
namespace trellisar {

/// Reads a whole system, whose folder is where the file lies. Raises host::Error errFile when the
/// file can't be read, and errBadFile when it is damaged, of another kind or of another version;
/// nothing is loaded by halves.
DocumentPtr readSystemFile(const std::filesystem::path& file,
                           const std::shared_ptr<const DeviceLibrary>& library);

/// The text that stands in a system's file. The same system gives the same text.
std::string systemFileText(const DocumentData& document);

/// Writes the system's file, to whose path, with backslashes, ".tsy" is added, and makes it the
/// document's own. Raises host::Error errFile, with the old file as it was.
void saveSystemFile(DocumentData& document, const std::string& path);

/// The path with ".tsy" at its end, once.
std::string withSystemExtension(const std::string& path);

}  // namespace trellisar
