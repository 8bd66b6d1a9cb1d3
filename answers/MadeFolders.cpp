#include "answers/MadeFolders.h"

#include <system_error>

namespace answers {

namespace fs = std::filesystem;

void MadeFolders::expect(const fs::path& folder) {
  std::error_code failure;
  for (fs::path path = folder; !path.empty() && !fs::exists(path, failure);
       path = path.parent_path()) {
    missing_.insert(path);
    if (path == path.parent_path()) break;
  }
}

void MadeFolders::removeEmpty() const {
  // A folder sorts before what lies in it, so the other way round each is emptied before its turn
  // comes.
  for (auto path = missing_.rbegin(); path != missing_.rend(); ++path) {
    std::error_code failure;
    if (fs::is_directory(*path, failure)) fs::remove(*path, failure);
  }
}

}  // namespace answers
