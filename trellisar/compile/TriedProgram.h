#pragma once

#include <filesystem>

#include "program/Program.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// The program of a system without errors as it can be tried before all of it is built: a panel
/// without a project has the pages of the one that would be made of it now, from the templates in
/// the folder; none where they have no pages for it. Raises what `compiledValues` raises.
program::Program triedProgram(const DocumentData& document, const std::filesystem::path& templates);

}  // namespace trellisar
