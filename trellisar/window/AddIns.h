#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "host/IAddInContract.h"

namespace trellisar {

class Host;

/// An add-in of the class of this name, for the thread's application. Its component is found in the
/// registration file and loaded when the process has not loaded it; threads may ask side by side.
/// Raises host::Error: the registration can't be read, the class is not in it, or what Component
/// raises.
std::shared_ptr<host::IAddInContract> createAddIn(const std::filesystem::path& registration,
                                                  const std::string& className);

/// All add-ins of the registration file. What can't be created is told to the user and left out.
std::vector<std::shared_ptr<host::IAddInContract>> createAddIns(
    const std::filesystem::path& registration);

/// Unloads the components of which nothing lives any more. True when no component is loaded then.
bool unloadComponents();

/// Hands the add-in what the host has, runs it on a new system and returns when its window has
/// closed.
void runOnNewSystem(host::IAddInContract& addIn, Host& host);
/// As above, on the system that is open in the host.
void runOnOpenSystem(host::IAddInContract& addIn, Host& host);

}  // namespace trellisar
