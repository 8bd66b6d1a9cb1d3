#pragma once

#include <functional>
#include <string>

#include "trellisar/document/DocumentData.h"
#include "trellisar/panels/PanelProject.h"
#include "trellisar/panels/PanelTemplate.h"

namespace trellisar {

/// Hears of each page and of each button that got nothing to do; the severity is
/// host::severityProgress or host::severityWarning.
using PanelMessages = std::function<void(std::int16_t severity, const std::string& text)>;

/// Makes the project of a panel. Buttons for devices that are not in the system, or for other
/// receivers, are left out. Its `madeFrom` covers the project and every label of the system, which
/// add-ins write onto buttons afterwards: it is another one as soon as the project would be.
/// Raises host::Error errBadFile when no page of the template is taken.
PanelProject buildPanelProject(const DocumentData& document, const DeviceData& panel,
                               const PanelTemplate& from, const PanelPages& pages,
                               const PanelMessages& messages);

}  // namespace trellisar
