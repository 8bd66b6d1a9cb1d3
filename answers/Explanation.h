#pragma once

#include "answers/Room.h"
#include "base/Json.h"
#include "trellisar/compile/Explained.h"
#include "trellisar/document/DocumentData.h"

namespace answers {

/// For which of its answers the pieces of a system are there, in the order of the table, by the
/// rule of docs/explain.md. The rooms that this takes are built in temporary folders, as many at a
/// time as the machine has processors. Raises what buildOfWhatHolds raises.
trellisar::Reasons explain(const trellisar::DocumentData& system, const base::Json& answers,
                           const RoomOptions& options);

}  // namespace answers
