#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "answers/Answers.h"
#include "answers/Delivery.h"
#include "answers/MadeFolders.h"
#include "answers/Report.h"
#include "trellisar/library/DeviceLibrary.h"
#include "trellisar/window/Host.h"

namespace answers {

struct RoomOptions {
  std::filesystem::path dataFolder;
  /// Opens the wizard in the host, and returns when its window has closed.
  std::function<void(trellisar::Host&)> openWizard;
  std::shared_ptr<const trellisar::DeviceLibrary> library;
  bool replace = false;  // an existing system or archive may be replaced
  Delivery delivery;
};

/// Runs the wizard once with a room's answers, unattended, on this thread. What it tells goes to
/// the report; the folders that it may have made go to `made`. Answers the path of the saved
/// system; raises RunEnded, and what else goes wrong.
std::filesystem::path buildRoom(const Answers& answers, const RoomOptions& options,
                                const Report& report, MadeFolders& made);

}  // namespace answers
