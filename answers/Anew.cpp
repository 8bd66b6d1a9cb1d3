#include "answers/Anew.h"

#include <stdlib.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <system_error>

#include "answers/Interrupt.h"
#include "answers/Paths.h"
#include "answers/RunEnded.h"
#include "trellisar/document/SystemFile.h"

namespace answers {
namespace {

namespace fs = std::filesystem;

constexpr const char* name = "Anew";

/// A folder of its own that is gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "orlena-XXXXXX").string();
    if (!mkdtemp(pattern.data())) {
      throw std::system_error(errno, std::generic_category(), "no temporary folder can be made");
    }
    path = pattern;
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

fs::path build(base::Json answers, const fs::path& folder, const RoomOptions& options) {
  answers["name"] = name;
  answers["folder"] = folder.string();
  MadeFolders made;
  return buildRoom(Answers(answers.dump()), {}, options, Unheard(), made);
}

}  // namespace

trellisar::DocumentPtr buildAnew(base::Json answers, const RoomOptions& options) {
  const TemporaryFolder folder;
  return trellisar::readSystemFile(build(std::move(answers), folder.path, options), nullptr);
}

trellisar::DocumentPtr buildOfWhatHolds(base::Json& answers, const RoomOptions& options) {
  while (true) {
    const TemporaryFolder folder;
    try {
      return trellisar::readSystemFile(build(answers, folder.path, options), nullptr);
    } catch (const RunEnded& ended) {
      Interrupt::endRunIfRequested();
      const fs::path saved = folder.path / name / (std::string(name) + ".tsy");
      if (fs::exists(saved)) return trellisar::readSystemFile(saved, nullptr);
      if (!takeOut(answers, ended.faults().front().path)) throw;
    }
  }
}

}  // namespace answers
