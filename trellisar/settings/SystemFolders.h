#pragma once

#include <string>

#include "trellisar/settings/Preferences.h"

namespace trellisar {

/// The folder for new systems, with backslashes and one at the end: what the environment variable
/// TRELLISAR_SYSTEMS names, or the preferences, or "Trellisar Systems" in the user's documents
/// folder.
std::string defaultSystemsFolder(const Preferences& preferences);

}  // namespace trellisar
