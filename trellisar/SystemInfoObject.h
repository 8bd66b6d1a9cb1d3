#pragma once

#include <memory>

#include "host/Document.h"
#include "trellisar/DocumentData.h"

namespace trellisar {

/// The most characters that a system's name has.
inline constexpr std::int16_t maximumNameLength = 50;

std::shared_ptr<host::SystemInfo> makeSystemInfo(const DocumentPtr& document);

}  // namespace trellisar
