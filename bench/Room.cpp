#include "bench/Room.h"

#include <stdexcept>

#include "addin/modGlobals.h"
#include "app/Environment.h"
#include "bench/Process.h"
#include "forms/Paths.h"
#include "generator/Generate.h"

namespace bench {

namespace fs = std::filesystem;

fs::path fullAnswers() { return fs::path(ORLENA_SOURCE_FOLDER) / "examples" / "lecture-hall.json"; }

fs::path buildFullRoom(const fs::path& folder) {
  Process({ORLENA_PROGRAM, "build", fullAnswers().string(), "--out", folder.string()}).wait();
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.path().extension() == ".tsy") return entry.path();
  }
  throw std::runtime_error("the full room was not built");
}

Room::Room(const fs::path& system) : host_({.dataFolder = app::dataFolder()}) {
  if (!host_.mainWindow()->FileOpen(forms::fromMachinePath(system), false)) {
    throw std::runtime_error("the room can't be opened: " + system.string());
  }
  choose();
  addIn_->FileOpen();
}

Room::~Room() {
  addin::SetDocument(nullptr);
  addin::SetLibraryManager(nullptr);
  addin::SetOwnerForm(nullptr);
}

void Room::choose() {
  addin::SetAddIn(addIn_);
  addin::SetDocument(host_.document());
  addin::SetLibraryManager(host_.libraryManager());
  addin::SetOwnerForm(host_.mainWindow());
}

void Room::generate() {
  generator::Generate builder;
  if (!builder.Build()) throw std::runtime_error(builder.GetLastError());
}

}  // namespace bench
