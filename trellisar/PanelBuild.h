#pragma once

#include <functional>
#include <string>

#include "trellisar/DocumentData.h"
#include "trellisar/PanelProject.h"
#include "trellisar/PanelTemplate.h"

namespace trellisar {

/// Which pages of a template are taken.
struct PanelPages {
  std::string prefix;  // what the names of the template's own pages begin with
  bool includesDefault = true;
  bool includesShared = true;
};

/// Hears of each page and of each button that got nothing to do; the severity is
/// host::severityProgress or host::severityWarning.
using PanelMessages = std::function<void(std::int16_t severity, const std::string& text)>;

/// Makes the project of a panel. Buttons for devices that are not in the system, or for other
/// receivers, are left out. Raises host::Error errBadFile when no page of the template is taken.
PanelProject buildPanelProject(const DocumentData& document, const DeviceData& panel,
                               const PanelTemplate& from, const PanelPages& pages,
                               const PanelMessages& messages);

}  // namespace trellisar
