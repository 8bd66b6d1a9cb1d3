#pragma once

#include <filesystem>

#include "host/Document.h"

namespace answers {

/// The file in which a system is, or will be, saved.
std::filesystem::path systemFileOf(const host::Document& document);

}  // namespace answers
