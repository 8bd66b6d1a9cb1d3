#pragma once

#include <filesystem>

#include "trellisar/document/DocumentData.h"

/// The file of the compiled program, beside the system's own.
namespace trellisar {

/// Where the compiled program lies; empty when there is none.
std::filesystem::path storedProgramFile(const DocumentData& document);

/// Forgets a compiled program that does not lie beside the system any more, so that it is made
/// anew.
void forgetMissingProgram(DocumentData& document, const std::filesystem::path& folder);

/// As above for a system that is about to be saved in the folder: the program of a system that
/// comes from another folder stays there, and one of its name that lies here is another system's.
void leaveProgramBehind(DocumentData& document, const std::filesystem::path& folder);

}  // namespace trellisar
