#pragma once

#include <filesystem>

#include "trellisar/settings/Preferences.h"

namespace app {

/// What comes with the program: the device library, the pictures, the template of systems.
std::filesystem::path dataFolder();

/// The registration of the host's components, which lies beside the program.
std::filesystem::path componentsFile();

/// The user's preferences, for reading: an unattended run leaves no trace in them.
trellisar::Preferences readOnlyPreferences();

/// The parent folder of systems where nothing else is said.
std::filesystem::path defaultSystemsFolder();

}  // namespace app
