#pragma once

#include <filesystem>
#include <optional>

#include "trellisar/document/DocumentData.h"
#include "trellisar/panels/PanelProject.h"

/// Whether the projects of a system's panels are there and still fit the system.
namespace trellisar {

/// What projects are made from beside the system.
struct PanelSource {
  std::filesystem::path templates;  // the folder of the templates
  std::optional<PanelPages> pages;  // as an add-in asked in this run; nothing: none did
};

/// Whether the panel's project lies beside the system, was finished, and would be made the same
/// today: from this template, these pages, devices, commands, presets and labels. A document
/// without a source of projects answers false.
bool isProjectBuilt(const DocumentData& document, const DeviceData& panel);

/// Raises host::Error errFile, with the panel's name, for a panel whose project does not lie beside
/// the system, whatever it was made from.
void requireProjectFiles(const DocumentData& document);

/// Raises host::Error errFile, with the panel's name, for a panel whose project is not built.
void requireBuiltProjects(const DocumentData& document);

}  // namespace trellisar
