#include "app/Rooms.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "answers/Answers.h"
#include "answers/Interrupt.h"
#include "answers/RoomTable.h"
#include "answers/RunEnded.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Error.h"
#include "base/FileIO.h"
#include "base/FileSet.h"

namespace app {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t mostBytesOfATable = 512U << 20U;
/// A whole column that is wrong is understood before its last row.
constexpr std::size_t mostFaultsTold = 100;

fs::path fileOf(const answers::TableRoom& room, const RoomsOptions& options) {
  return (options.out / (room.name + ".json")).lexically_normal();
}

/// False where the place of a room's file is taken, which then `faults` tell.
bool isToBeWritten(const answers::TableRoom& room, const RoomsOptions& options, std::size_t column,
                   std::vector<answers::TableFault>& faults) {
  const fs::path file = fileOf(room, options);
  std::error_code ignored;
  if (!fs::exists(file, ignored)) return true;
  const bool isFile = fs::is_regular_file(file, ignored);
  if (isFile && base::readFile(file) == room.text) return false;
  const bool isItself = base::isSameFile(file, options.pattern);
  if (options.replace && isFile && !isItself) return true;
  const std::string what = isItself ? " is the template itself"
                                    : " is there already and says something else; --replace "
                                      "replaces it";
  faults.push_back({room.row, column, "name: " + file.string() + what});
  return false;
}

void tell(const std::vector<answers::TableFault>& faults, const RoomsOptions& options) {
  const RunReport report(options.table.string());
  const std::size_t told = std::min(faults.size(), mostFaultsTold);
  for (std::size_t i = 0; i < told; ++i) report.line(faults[i].text());
  if (told == faults.size()) return;
  report.line("and " + std::to_string(faults.size() - told) + " more");
}

/// Nothing: the file is wrong, which has been told.
std::optional<answers::Answers> readPattern(const fs::path& file) {
  const RunReport report(file.string());
  try {
    return answers::Answers(base::readFile(file));
  } catch (const answers::RunEnded& ended) {
    for (const auto& fault : ended.faults()) report.fault(fault);
  } catch (const base::Error& error) {
    report.line(error.what());
  }
  return std::nullopt;
}

/// As above.
std::optional<answers::RoomTable> readTable(const base::Json& pattern,
                                            const RoomsOptions& options) {
  try {
    const std::string text = base::readFile(options.table, mostBytesOfATable);
    answers::RoomTable table(text, pattern);
    if (table.faults.empty()) return table;
    tell(table.faults, options);
  } catch (const base::Error& error) {
    RunReport(options.table.string()).line(error.what());
  }
  return std::nullopt;
}

int write(const answers::RoomTable& table, const RoomsOptions& options) {
  std::vector<answers::TableFault> faults;
  std::vector<const answers::TableRoom*> written;
  for (const answers::TableRoom& room : table.rooms) {
    if (isToBeWritten(room, options, table.nameColumn, faults)) written.push_back(&room);
  }
  tell(faults, options);
  if (!faults.empty()) return exitStatus::refused;

  if (!written.empty()) {
    const answers::Interrupt interrupt;
    base::FileSet files(options.out);
    for (const answers::TableRoom* room : written) {
      answers::Interrupt::endRunIfRequested();
      files.add(room->name + ".json", room->text);
    }
    files.place();
  }
  for (const answers::TableRoom& room : table.rooms) print(fileOf(room, options).string() + "\n");
  return exitStatus::ok;
}

}  // namespace

int writeRooms(const RoomsOptions& options) {
  const auto pattern = readPattern(options.pattern);
  if (!pattern) return exitStatus::wrongInput;
  const auto table = readTable(*pattern->find({}), options);
  return table ? write(*table, options) : exitStatus::wrongInput;
}

}  // namespace app
