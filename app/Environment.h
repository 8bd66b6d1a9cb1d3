#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "trellisar/settings/Preferences.h"

namespace app {

/// What comes with the program: the device library, the pictures, the template of systems. It is
/// the folder that ORLENA_DATA names, or else "data" beside the program, or "share/orlena" of the
/// prefix that it is installed in. Raises host::Error errFile where it is not there.
std::filesystem::path dataFolder();

/// A file that belongs to the program: beside it, or in "lib/orlena/parts" of the prefix that it is
/// installed in. Nothing where it is in neither.
std::optional<std::filesystem::path> findProgramFile(const std::string& name);

/// The registration of the host's components, one of the program's files.
std::filesystem::path componentsFile();

/// The user's preferences, for reading: an unattended run leaves no trace in them.
trellisar::Preferences readOnlyPreferences();

/// The parent folder of systems where nothing else is said.
std::filesystem::path defaultSystemsFolder();

}  // namespace app
