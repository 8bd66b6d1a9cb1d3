#pragma once

#include "forms/FrontEnd.h"

namespace app {

/// What draws the windows: a module that is loaded at the first call, from beside the program or
/// from its folder in the install prefix. Null where it is not installed. Raises host::Error where
/// it is there but can't be loaded.
forms::FrontEnd* frontEnd();

}  // namespace app
