#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "trellisar/document/DocumentData.h"

/// Archives, ".tsa": a whole system in one zip file. Their content is in docs/archive.md.
namespace trellisar {

inline constexpr const char* archiveExtension = ".tsa";

/// The archive of a system with its compiled program, panel projects and reports. The same system
/// gives the same bytes. Raises host::Error where the compiled program is missing or damaged, or
/// the project of a panel is not built.
std::string archiveOf(const DocumentData& document);

/// Unpacks an archive into a folder of the system's name below `parent` and answers the system's
/// file. Raises host::Error errFile when a file can't be read or written or the folder is there
/// with something in it, and errBadFile when the archive is damaged, too large, holds what could
/// lie outside of its folder, or holds no whole system; then nothing is left behind.
std::filesystem::path unpackArchive(const std::filesystem::path& archive,
                                    const std::filesystem::path& parent);

}  // namespace trellisar
