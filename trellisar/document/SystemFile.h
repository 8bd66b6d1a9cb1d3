#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "trellisar/document/DocumentData.h"

/// System files, ".tsy". Their form is in docs/system-file.md.
namespace trellisar {

/// Reads a whole system, whose folder is where the file lies. Raises host::Error errFile when the
/// file can't be read, and errBadFile when it is damaged, of another kind or of another version;
/// nothing is loaded by halves.
DocumentPtr readSystemFile(const std::filesystem::path& file,
                           const std::shared_ptr<const DeviceLibrary>& library);

/// As above for the text of one, which `shown` names in errors. The system has neither a file nor a
/// folder, and the name that stands there.
DocumentPtr readSystemText(const std::string& text, const std::string& shown,
                           const std::shared_ptr<const DeviceLibrary>& library);

/// The text that stands in a system's file. The same system gives the same text.
std::string systemFileText(const DocumentData& document);

/// What stands where a system is to be saved.
enum class Standing {
  nothing,
  own,      // the document's own file, as it was read or saved last
  changed,  // the document's own file, which another program has changed since
  other,    // another file
};

Standing standingAt(const DocumentData& document, const std::filesystem::path& file);

/// Whether a save may replace a file that is changed or another one.
enum class Overwriting { refused, allowed };

/// Writes the system's file, to whose path, with backslashes, ".tsy" is added, and makes it the
/// document's own. A compiled program that does not lie beside it is forgotten. Raises host::Error:
/// errBadArgument for a name that a system's file can't have, and errFile, with the old file and
/// the document as they were. With Overwriting::refused a file that came there just now stays too.
void saveSystemFile(DocumentData& document, const std::string& path,
                    Overwriting overwriting = Overwriting::refused);

/// The path with ".tsy" at its end, once.
std::string withSystemExtension(const std::string& path);

}  // namespace trellisar
