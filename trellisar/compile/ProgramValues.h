#pragma once

#include "program/Program.h"
#include "trellisar/document/DocumentData.h"
#include "trellisar/panels/PanelProject.h"

/// A system as what its receiver runs.
namespace trellisar {

/// The program of a system without errors. A panel has the pages of the project that lies beside
/// the system, and none without it. Raises host::Error errFile or errBadFile for a project that
/// can't be read.
program::Program compiledValues(const DocumentData& document);

/// What the buttons of a project's pages do. A button for what is not in the program does nothing.
std::vector<program::Page> programPages(const PanelProject& project,
                                        const program::Program& program);

}  // namespace trellisar
