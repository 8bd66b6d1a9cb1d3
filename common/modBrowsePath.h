#pragma once

#include <cstdint>
#include <string>

namespace common {

/// Lets the user choose a folder; empty when it was cancelled. The dialog opens in sInitialFolder,
/// or in the program's own folder when that is empty.
std::string BrowseForFolder(std::int32_t hwndOwner, const std::string& sTitle,
                            const std::string& sInitialFolder);

}  // namespace common
