#pragma once

#include <string>

#include "answers/Acts.h"

namespace answers {

/// As `enter`. Nothing but blanks is no name, whatever the box shows: they are no part of it.
Act enterName(std::string textBox);

/// Clicks the button and answers the folder dialog; `location` shows the system's own folder below
/// the one that was chosen.
Act chooseParentFolder(std::string button, std::string location);

/// Raises RunEnded, as refused, where the system would take the place of one that it may not
/// replace.
void refuseExistingSystem(const Page& page);

}  // namespace answers
