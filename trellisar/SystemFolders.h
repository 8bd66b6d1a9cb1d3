#pragma once

#include <string>
#include <utility>
#include <vector>

#include "trellisar/DocumentData.h"
#include "trellisar/Preferences.h"

namespace trellisar {

/// The folder for new systems, with backslashes and one at the end: what the environment variable
/// TRELLISAR_SYSTEMS names, or the preferences, or "Trellisar Systems" in the user's documents
/// folder.
std::string defaultSystemsFolder(const Preferences& preferences);

/// Why no system's file can have the name, which is without the extension; empty when one can.
std::string fileNameProblem(const std::string& name);

/// As above for a name that a user gives a system, which is no longer than systems' names are.
std::string systemNameProblem(const std::string& name);

/// A path with backslashes as people read and type it; an empty one stays empty.
std::string shownPath(const std::string& path);

/// Whether the two machine paths lead to one file.
bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// A system file of the folder that is not the document's own; empty when there is none.
std::filesystem::path foreignSystemIn(const std::filesystem::path& folder,
                                      const std::filesystem::path& ownFile);

/// The compiled program and the panel projects of a system that is about to be replaced.
class Belongings {
 public:
  Belongings() = default;
  explicit Belongings(std::vector<std::filesystem::path> files) : files_(std::move(files)) {}
  /// As far as they are there.
  void remove() const;

 private:
  std::vector<std::filesystem::path> files_;
};

/// Those of the system in the file; none when it is not there, or lies where the document does.
Belongings belongingsOfOther(const DocumentData& document, const std::filesystem::path& file);

/// Makes a folder and those above it. Without `keep` they are removed again at the end, as far as
/// they are empty.
class MadeFolders {
 public:
  /// Raises host::Error errFile with the folder and the reason.
  explicit MadeFolders(const std::filesystem::path& folder);
  ~MadeFolders();
  MadeFolders(const MadeFolders&) = delete;
  MadeFolders& operator=(const MadeFolders&) = delete;

  void keep() { made_.clear(); }

 private:
  void removeMade();

  std::vector<std::filesystem::path> made_;  // the innermost last
};

}  // namespace trellisar
