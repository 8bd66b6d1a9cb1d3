#pragma once

#include <memory>

#include "app/Answers.h"
#include "app/Batch.h"
#include "app/Delivery.h"
#include "app/MadeFolders.h"
#include "app/RunReport.h"
#include "trellisar/library/DeviceLibrary.h"

namespace app {

struct RoomOptions {
  std::shared_ptr<const trellisar::DeviceLibrary> library;
  bool replace = false;  // an existing system or archive may be replaced
  Delivery delivery;
};

/// Runs the wizard once with a room's answers, unattended, on this thread. What it tells goes to
/// the report; the folders that it may have made go to `made`.
RoomResult buildRoom(const Answers& answers, const RoomOptions& options, const RunReport& report,
                     MadeFolders& made);

}  // namespace app
