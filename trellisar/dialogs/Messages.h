#pragma once

#include <string>

namespace trellisar {

/// Shows a message that something could not be done.
void showFailure(const std::string& text);

}  // namespace trellisar
