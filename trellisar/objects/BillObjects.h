#pragma once

#include <memory>

#include "host/BillOfMaterials.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

std::shared_ptr<host::Reports> makeReports(const DocumentPtr& document);

}  // namespace trellisar
