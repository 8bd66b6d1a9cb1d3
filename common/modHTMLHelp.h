#pragma once

#include <cstdint>

namespace common {

/// Shows a topic of the program's help file; topic 0 is the help context of the active form, if
/// there is one. What hinders it is told to the user.
void ShowHelpTopic(std::int32_t hwnd, std::int16_t iContextID);

/// Goes to the program's own folder and closes all help windows. False: it failed, and the user has
/// been told.
bool CloseAllHelp();

}  // namespace common
