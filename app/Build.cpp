#include "app/Build.h"

#include <algorithm>
#include <map>
#include <set>

#include "answers/Answers.h"
#include "answers/Batch.h"
#include "answers/ErrorWords.h"
#include "answers/Interrupt.h"
#include "answers/MadeFolders.h"
#include "answers/Room.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Error.h"
#include "base/FileIO.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "receiver/Address.h"
#include "receiver/Error.h"

namespace app {
namespace {

namespace fs = std::filesystem;

/// An answers file on its way to a system: a new one, or one that is there.
struct Room {
  explicit Room(const fs::path& answersFile, const fs::path& system = {})
      : file(answersFile), onto(system), report(answersFile.string(), system.string()) {}

  fs::path file;
  fs::path onto;
  RunReport report;
  std::optional<answers::Answers> given;  // nothing: the file is wrong, which has been told
  answers::MadeFolders made;
};

/// The file name that stands for standard input.
constexpr const char* standardInput = "-";

/// One byte more than is allowed is enough to see that there is too much.
std::string contentOf(const fs::path& file) {
  return file == standardInput ? readInput(answers::Answers::mostBytes + 1) : base::readFile(file);
}

std::optional<answers::Answers> read(const fs::path& file, const BuildOptions& options,
                                     const RunReport& report) {
  try {
    answers::Answers answers(contentOf(file));
    if (options.out) answers.setFolder(*options.out);
    return answers;
  } catch (const answers::RunEnded& ended) {
    for (const auto& fault : ended.faults()) report.fault(fault);
  } catch (const base::Error& error) {
    report.line(error.what());
  }
  return std::nullopt;
}

std::string textAt(const answers::Answers& answers, const char* path) {
  const base::Json* value = answers.find(path);
  return value ? value->get<std::string>() : std::string();
}

/// Where the room's system will lie, as far as it can be known before the wizard has chosen a name.
fs::path placeOf(const answers::Answers& answers) {
  const fs::path parent =
      answers.find("folder") ? fs::path(textAt(answers, "folder")) : defaultSystemsFolder();
  std::error_code failure;
  const fs::path whole = fs::weakly_canonical(fs::current_path() / parent, failure);
  return whole / forms::trimmed(textAt(answers, "name"));
}

/// False when the rooms can't be built together, which is then told.
bool canStandTogether(const std::vector<Room>& rooms) {
  std::map<fs::path, const Room*> places;
  bool can = true;
  for (const Room& room : rooms) {
    if (!room.given || !room.onto.empty() || rooms.size() == 1) continue;
    if (!room.given->find("name")) {
      room.report.line("name: is missing; of several rooms each must have one");
      can = false;
      continue;
    }
    const auto [place, isNew] = places.emplace(placeOf(*room.given), &room);
    if (!isNew) {
      room.report.line("leads to the same system as " + place->second->file.string() + ": " +
                       place->first.string());
      can = false;
    }
  }
  return can;
}

/// Standard input can be read once only.
bool canBeRead(const std::vector<fs::path>& files) {
  if (std::count(files.begin(), files.end(), standardInput) <= 1) return true;
  reportLine("standard input (-) can be given once, and is given several times");
  return false;
}

/// False when the export or the upload can't be done, which is then told.
bool canBeDelivered(const BuildOptions& options) {
  const bool several = options.answersFiles.size() > 1 || options.onto.size() > 1;
  for (const auto& [option, isGiven] : {std::pair{"--export", options.delivery.archive.has_value()},
                                        {"--upload", options.delivery.address.has_value()}}) {
    if (!several || !isGiven) continue;
    reportLine(std::string(option) + " takes one room, and there are several");
    return false;
  }
  if (!options.delivery.address) return true;
  try {
    receiver::Address::parse(*options.delivery.address);
    return true;
  } catch (const receiver::Error& error) {
    reportLine(std::string("--upload: ") + error.what());
    return false;
  }
}

/// The library that all rooms share; nothing when its index can't be read, which is then told.
std::shared_ptr<const trellisar::DeviceLibrary> openLibrary(const BuildOptions& options) {
  try {
    return std::make_shared<trellisar::DeviceLibrary>(
        options.library.value_or(dataFolder() / "library"));
  } catch (const host::Error& error) {
    reportLine(error.description());
    return nullptr;
  }
}

int exitStatusOf(answers::RunEnded::Cause cause) {
  return cause == answers::RunEnded::refused ? exitStatus::refused : exitStatus::wrongInput;
}

answers::RoomResult buildOrTell(Room& room, const answers::RoomOptions& options) {
  if (!room.given) return {exitStatus::wrongInput, {}};
  try {
    return {exitStatus::ok,
            answers::buildRoom(*room.given, room.onto, options, room.report, room.made).string()};
  } catch (const answers::RunEnded& ended) {
    for (const auto& fault : ended.faults()) room.report.fault(room.given->placed(fault));
    return {exitStatusOf(ended.cause()), {}};
  } catch (const std::exception& error) {
    room.report.line(answers::wordsOf(error));
    return {exitStatus::refused, {}};
  }
}

/// An answers file for each room, and its place.
std::vector<Room> roomsOf(const BuildOptions& options) {
  std::vector<Room> rooms;
  for (const fs::path& file : options.answersFiles) {
    rooms.emplace_back(file);
    rooms.back().given = read(file, options, rooms.back().report);
  }
  return rooms;
}

/// False when the options, or the answers, are none for systems that are there, which is then told.
bool canBeOnto(const BuildOptions& options, const Room& room) {
  for (const auto& [option, isGiven] :
       {std::pair{"--out", options.out.has_value()}, {"--replace", options.replace}}) {
    if (!isGiven) continue;
    reportLine(std::string(option) +
               " is for new systems, and --onto answers those that there are");
    return false;
  }
  bool can = room.given.has_value();
  for (const char* key : {"name", "folder"}) {
    if (!room.given || !room.given->find(key)) continue;
    room.report.fault(room.given->placed(
        {"is for a new system; with --onto a system keeps its name and its folder", key}));
    can = false;
  }
  return can;
}

/// False when a system is not there, or stands twice, which is then told.
bool areThere(const RunReport& report, const std::vector<fs::path>& systems) {
  bool are = true;
  std::set<fs::path> seen;
  for (const fs::path& system : systems) {
    std::error_code failure;
    if (!fs::exists(system, failure)) {
      report.line("there is no system file " + system.string());
      are = false;
    } else if (!seen.insert(fs::canonical(system, failure)).second) {
      report.line("the system is named twice: " + system.string());
      are = false;
    }
  }
  return are;
}

/// The one answers file, for each of the systems; nothing when they can't be built, which is then
/// told.
std::vector<Room> roomsOnto(const BuildOptions& options) {
  if (options.answersFiles.size() > 1) {
    reportLine("--onto takes one answers file, and there are several");
    return {};
  }
  const fs::path& file = options.answersFiles.front();
  Room first(file);
  first.given = read(file, options, first.report);
  if (!canBeOnto(options, first) || !areThere(first.report, options.onto)) return {};
  std::vector<Room> rooms;
  for (const fs::path& system : options.onto) {
    rooms.emplace_back(file, system);
    rooms.back().given = first.given;
  }
  return rooms;
}

}  // namespace

int build(const BuildOptions& options) {
  if (!canBeRead(options.answersFiles) || !canBeDelivered(options)) return exitStatus::wrongInput;

  const answers::Interrupt interrupt;
  std::vector<Room> rooms = options.onto.empty() ? roomsOf(options) : roomsOnto(options);
  if (rooms.empty() || !canStandTogether(rooms)) return exitStatus::wrongInput;

  const answers::RoomOptions roomOptions{dataFolder(), openUnattended, openLibrary(options),
                                         options.replace, options.delivery};
  if (!roomOptions.library) return exitStatus::wrongInput;

  std::vector<answers::Batch::Job> jobs;
  for (Room& room : rooms) jobs.emplace_back([&] { return buildOrTell(room, roomOptions); });
  answers::Batch batch([](const std::string& systemFile) { print(systemFile + "\n"); });
  const int status = batch.run(jobs, options.jobs);
  // Only now, since a room that is still being built may be about to use a folder that another one
  // made.
  for (const Room& room : rooms) room.made.removeEmpty();
  return status;
}

}  // namespace app
