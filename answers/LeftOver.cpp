#include "answers/LeftOver.h"

#include <stdlib.h>

#include <algorithm>
#include <cerrno>
#include <sstream>
#include <system_error>

#include "trellisar/compare/Compare.h"
#include "trellisar/document/SystemFile.h"

namespace answers {
namespace {

namespace fs = std::filesystem;

/// A folder of its own that is gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "orlena-XXXXXX").string();
    if (!mkdtemp(name.data())) {
      throw std::system_error(errno, std::generic_category(), "no temporary folder can be made");
    }
    path = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  fs::path path;
};

/// What a run tells whose result alone matters.
struct Unheard : Report {
  void line(const std::string&) const override {}
};

trellisar::DocumentPtr buildAnew(base::Json answers, const RoomOptions& options) {
  const TemporaryFolder folder;
  answers["name"] = "Anew";
  answers["folder"] = folder.path.string();
  MadeFolders made;
  const fs::path file = buildRoom(Answers(answers.dump()), {}, options, Unheard(), made);
  return trellisar::readSystemFile(file, nullptr);
}

/// The rows of all settings, "Power On Lockout Time=30".
std::vector<std::string> settingsOf(const trellisar::DocumentData& document) {
  std::vector<std::string> rows;
  for (const auto& [title, block] : document.settings) {
    std::istringstream all(block);
    for (std::string row; std::getline(all, row, ';');) rows.push_back(row);
  }
  return rows;
}

}  // namespace

std::vector<std::string> leftOver(const fs::path& system, const base::Json& answers,
                                  const RoomOptions& options) {
  const trellisar::DocumentPtr anew = buildAnew(answers, options);
  const trellisar::DocumentPtr found = trellisar::readSystemFile(system, nullptr);
  std::vector<std::string> words;
  const std::vector<std::string> expected = settingsOf(*anew);
  for (const std::string& row : settingsOf(*found)) {
    if (std::find(expected.begin(), expected.end(), row) != expected.end()) continue;
    words.push_back("the setting " + row);
  }
  for (const trellisar::Difference& difference : trellisar::compare(*anew, *found)) {
    words.push_back(trellisar::inWords(difference));
  }
  return words;
}

}  // namespace answers
