#include "trellisar/panels/PanelState.h"

#include <system_error>

#include "host/Error.h"
#include "trellisar/panels/PanelBuild.h"

namespace trellisar {
namespace {

std::string madeFromToday(const DocumentData& document, const DeviceData& panel,
                          const PanelPages& pages) {
  const PanelTemplate from =
      findPanelTemplate(document.panelSource->templates, panel.definition->modelId);
  const auto sayNothing = [](std::int16_t, const std::string&) {};
  return buildPanelProject(document, panel, from, pages, sayNothing).madeFrom;
}

template <typename Is>
void require(const DocumentData& document, const char* what, Is&& is) {
  for (const DevicePtr& panel : document.panels) {
    if (!panel->definition->projectPanel || is(*panel)) continue;
    throw host::Error(host::errFile, "The touch panel \"" + panel->name + "\" " + what +
                                         " Build the system again, which makes its project.");
  }
}

}  // namespace

bool isProjectBuilt(const DocumentData& document, const DeviceData& panel) {
  if (!panel.projectBuilt || !document.panelSource) return false;
  try {
    const PanelProject made = readPanelProject(panelProjectFile(document, panel));
    const PanelPages& pages = document.panelSource->pages.value_or(made.taken);
    return made.madeFrom == madeFromToday(document, panel, pages);
  } catch (const host::Error&) {
    return false;  // the next making of the project tells what is wrong
  }
}

void requireProjectFiles(const DocumentData& document) {
  require(document, "has no project beside the system.", [&](const DeviceData& panel) {
    std::error_code error;
    return std::filesystem::is_regular_file(panelProjectFile(document, panel), error);
  });
}

void requireBuiltProjects(const DocumentData& document) {
  require(document, "has no project that fits the system as it is now.",
          [&](const DeviceData& panel) { return isProjectBuilt(document, panel); });
}

}  // namespace trellisar
