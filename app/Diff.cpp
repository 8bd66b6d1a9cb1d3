#include "app/Diff.h"

#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "host/Error.h"
#include "trellisar/compare/Compare.h"
#include "trellisar/document/SystemFile.h"

namespace app {
namespace {

namespace fs = std::filesystem;

constexpr const char* noFile = "/dev/null";

trellisar::DocumentPtr read(const fs::path& file) {
  if (file == noFile) return std::make_shared<trellisar::DocumentData>(nullptr);
  return trellisar::readSystemFile(file, nullptr);
}

trellisar::Differences differencesOf(const fs::path& before, const fs::path& after) {
  return trellisar::compare(*read(before), *read(after));
}

/// What git hands over, by its place.
enum GitArgument : std::size_t { path = 0, before = 1, after = 4, newPath = 7 };

std::string heading(const std::vector<std::string>& arguments) {
  const std::string& name = arguments[path];
  if (arguments.size() > newPath) return name + " is now " + arguments[newPath];
  if (arguments[before] == noFile) return name + " is new";
  return arguments[after] == noFile ? name + " is gone" : name;
}

std::string wordsForGit(const fs::path& before, const fs::path& after) {
  try {
    const std::string words = trellisar::readableText(differencesOf(before, after));
    return words.empty() ? "    No device, no answer and no step differs.\n" : words;
  } catch (const host::Error& error) {
    return "    The systems can't be compared. " + error.description() + "\n";
  }
}

}  // namespace

int diff(const DiffOptions& options) {
  try {
    const trellisar::Differences differences = differencesOf(options.before, options.after);
    print(options.asJson ? base::jsonText(trellisar::toJson(differences))
                         : trellisar::readableText(differences));
    return differences.empty() ? exitStatus::ok : exitStatus::different;
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::wrongInput;
  }
}

int diffForGit(const std::vector<std::string>& arguments) {
  if (arguments.size() == 1) {
    print(arguments[path] + " is not merged yet\n\n");
    return exitStatus::ok;
  }
  if (arguments.size() < newPath) {
    reportLine("git hands over one argument, seven, or more than that");
    return exitStatus::wrongInput;
  }
  print(heading(arguments) + "\n" + wordsForGit(arguments[before], arguments[after]) + "\n");
  return exitStatus::ok;
}

}  // namespace app
