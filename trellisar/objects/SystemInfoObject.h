#pragma once

#include <memory>

#include "host/Document.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

std::shared_ptr<host::SystemInfo> makeSystemInfo(const DocumentPtr& document);

}  // namespace trellisar
