#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "answers/Room.h"

namespace answers {

/// What earlier answers left behind in a system: all in which it differs from one that its answers
/// build anew, in words. The new one is built in a temporary folder, which is gone afterwards.
/// Raises std::system_error where that can't be made, and what buildRoom raises where the answers
/// build nothing, such as with a library that lacks the system's devices.
std::vector<std::string> leftOver(const std::filesystem::path& system, const base::Json& answers,
                                  const RoomOptions& options);

}  // namespace answers
