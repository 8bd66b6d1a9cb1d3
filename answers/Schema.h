#pragma once

#include "base/Json.h"
#include "trellisar/library/DeviceLibrary.h"

namespace answers {

/// The form of an answers file as a JSON Schema (draft 2020-12), for editors and other programs. A
/// device is one of the library's, a command one of the device's own; that the room asks for the
/// answer is not told. Raises what DeviceLibrary raises.
base::Json schema(const trellisar::DeviceLibrary& library);

}  // namespace answers
