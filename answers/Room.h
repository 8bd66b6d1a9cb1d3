#pragma once

#include <filesystem>
#include <functional>
#include <memory>

#include "answers/Answers.h"
#include "answers/Delivery.h"
#include "answers/MadeFolders.h"
#include "answers/Reading.h"
#include "answers/Report.h"
#include "trellisar/library/DeviceLibrary.h"
#include "trellisar/window/Host.h"

namespace answers {

struct RoomOptions {
  std::filesystem::path dataFolder;
  /// Opens the wizard in the host, on its open system or, where none is, on a new one, and returns
  /// when its window has closed.
  std::function<void(trellisar::Host&)> openWizard;
  std::shared_ptr<const trellisar::DeviceLibrary> library;
  bool replace = false;  // an existing system or archive may be replaced
  Delivery delivery = {};
};

/// Goes through the wizard once on a saved system, unattended, on this thread, and reads what it
/// shows; the system's file is not touched. Raises what buildRoom raises.
Reading readRoom(const std::filesystem::path& system, const RoomOptions& options,
                 const Report& report);

/// Runs the wizard once with a room's answers, unattended, on this thread. What it tells goes to
/// the report; the folders that it may have made go to `made`. `onto` is the system that is
/// answered; empty: a new one. Answers the path of the saved system; raises RunEnded, and what else
/// goes wrong.
std::filesystem::path buildRoom(const Answers& answers, const std::filesystem::path& onto,
                                const RoomOptions& options, const Report& report,
                                MadeFolders& made);

}  // namespace answers
