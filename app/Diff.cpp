#include "app/Diff.h"

#include <future>
#include <memory>
#include <optional>
#include <utility>

#include "answers/Differences.h"
#include "answers/ErrorWords.h"
#include "answers/Room.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
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

/// The answers that a system gives; nothing, which is told, for one that the wizard does not open.
std::optional<base::Json> answersOf(const fs::path& file, const answers::RoomOptions& options) {
  if (file == noFile) return base::Json::object();
  const RunReport report(file.string());
  try {
    return answers::readRoom(file, options, report).answers;
  } catch (const answers::RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) report.fault(fault);
  } catch (const std::exception& error) {
    report.line(answers::wordsOf(error));
  }
  return std::nullopt;
}

/// Both wizards run at a time: they take longer than all else.
trellisar::Differences differencesOfAnswers(const fs::path& before, const fs::path& after) {
  const answers::RoomOptions options{
      .dataFolder = dataFolder(),
      .openWizard = openUnattended,
      .library = std::make_shared<trellisar::DeviceLibrary>(dataFolder() / "library")};
  auto other = std::async(std::launch::async, [&] { return answersOf(after, options); });
  const std::optional<base::Json> was = answersOf(before, options);
  const std::optional<base::Json> is = other.get();
  return was && is ? answers::differences(*was, *is) : trellisar::Differences();
}

trellisar::Differences differencesOf(const fs::path& before, const fs::path& after) {
  const trellisar::DocumentPtr was = read(before);
  const trellisar::DocumentPtr is = read(after);
  trellisar::Differences program = trellisar::compare(*was, *is);
  // What gives the answers is the settings and the devices.
  if (program.empty() && was->settings == is->settings) return program;
  trellisar::Differences all = differencesOfAnswers(before, after);
  all.insert(all.end(), program.begin(), program.end());
  return all;
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
