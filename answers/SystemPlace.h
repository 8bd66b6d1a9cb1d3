#pragma once

#include <filesystem>

#include "host/Document.h"

namespace app {

/// The file in which a system is, or will be, saved.
std::filesystem::path systemFileOf(const host::Document& document);

}  // namespace app
