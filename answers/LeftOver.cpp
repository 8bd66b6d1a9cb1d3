#include "answers/LeftOver.h"

#include <algorithm>
#include <sstream>

#include "answers/Anew.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/document/SystemFile.h"

namespace answers {
namespace {

namespace fs = std::filesystem;

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
