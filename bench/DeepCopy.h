#pragma once

#include <memory>

#include "trellisar/document/DocumentData.h"

namespace bench {

/// A copy of everything that a document holds of its own, and nothing that it shares: the library's
/// definitions are not copied. Its lookups are filled too.
std::shared_ptr<trellisar::DocumentData> deepCopy(const trellisar::DocumentData& document);

}  // namespace bench
