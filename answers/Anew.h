#pragma once

#include "answers/Room.h"
#include "base/Json.h"
#include "trellisar/document/DocumentData.h"

namespace answers {

/// The room that answers build, in a temporary folder, which is gone afterwards. Raises
/// std::system_error where that can't be made, and what buildRoom raises where the answers build
/// nothing, such as with a library that lacks a device of theirs.
trellisar::DocumentPtr buildAnew(base::Json answers, const RoomOptions& options);

/// The room of those of the answers that it can be given: what the wizard does not ask for without
/// the others is taken out of them. A room whose program has faults is one too. Raises the same
/// where there is none.
trellisar::DocumentPtr buildOfWhatHolds(base::Json& answers, const RoomOptions& options);

}  // namespace answers
