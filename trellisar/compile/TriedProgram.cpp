#include "trellisar/compile/TriedProgram.h"

#include "host/Error.h"
#include "trellisar/compile/ProgramValues.h"
#include "trellisar/panels/PanelBuild.h"
#include "trellisar/panels/PanelTemplate.h"

namespace trellisar {
namespace {

/// The project that would be made of a panel; one without pages where the templates give none, for
/// that keeps nobody from trying the rest of the room.
PanelProject projectOf(const DocumentData& document, const DeviceData& panel,
                       const std::filesystem::path& templates) {
  const PanelPages pages{"[" + document.application + "]", false, false};
  try {
    return buildPanelProject(document, panel,
                             findPanelTemplate(templates, panel.definition->modelId), pages,
                             [](std::int16_t, const std::string&) {});
  } catch (const host::Error&) {
    return {};
  }
}

}  // namespace

program::Program triedProgram(const DocumentData& document,
                              const std::filesystem::path& templates) {
  program::Program program = compiledValues(document);
  for (const DevicePtr& panel : document.panels) {
    if (!panel->definition->projectPanel) continue;
    for (program::Unit& unit : program.units) {
      const bool isIt = unit.kind == program::Unit::Kind::panel && unit.handle == panel->handle;
      if (isIt && unit.pages.empty())
        unit.pages = programPages(projectOf(document, *panel, templates), program);
    }
  }
  return program;
}

}  // namespace trellisar
