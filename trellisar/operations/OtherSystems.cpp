#include "trellisar/operations/OtherSystems.h"

#include <system_error>

#include "base/FileIO.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/document/ProgramFile.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/panels/PanelProject.h"

namespace trellisar {

namespace fs = std::filesystem;

fs::path foreignSystemIn(const fs::path& folder, const fs::path& ownFile) {
  fs::path foreign;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    if (forms::lowerCase(entry.path().extension().string()) != ".tsy") continue;
    if (base::isSameFile(entry.path(), ownFile)) return {};
    if (foreign.empty() || entry.path() < foreign) foreign = entry.path();
  }
  return foreign;
}

void Belongings::remove() const {
  std::error_code ignored;
  for (const fs::path& file : files_) fs::remove(file, ignored);
}

Belongings belongingsOfOther(const DocumentData& document, const fs::path& file) {
  std::error_code error;
  if (!fs::exists(file, error)) return {};
  if (base::isSameFile(file.parent_path(), document.ownFile.parent_path())) return {};
  try {
    const DocumentPtr other = readSystemFile(file, nullptr);
    std::vector<fs::path> files;
    if (!other->compiledProgram.empty()) files.push_back(storedProgramFile(*other));
    for (const DevicePtr& panel : other->panels) {
      if (panel->definition->projectPanel) files.push_back(panelProjectFile(*other, *panel));
    }
    return Belongings(std::move(files));
  } catch (const host::Error&) {
    return {};  // of a damaged system nobody knows what belongs to it
  }
}

}  // namespace trellisar
