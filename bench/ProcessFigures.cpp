#include "app/Environment.h"
#include "base/FileIO.h"
#include "base/Json.h"
#include "bench/Figure.h"
#include "bench/LargeLibrary.h"
#include "bench/Process.h"
#include "bench/Room.h"
#include "forms/Paths.h"
#include "trellisar/document/SystemFile.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using Command = std::vector<std::string>;
using base::Json;

/// What the process figures read and write, as long as one of their sides lives.
using Place = std::shared_ptr<const TemporaryFolder>;

fs::path templateSystem() {
  return app::dataFolder() / "TemplateSystems" / "Orlena TEMPLATE" / "Orlena TEMPLATE.tsy";
}

fs::path shippedLibrary() { return app::dataFolder() / "library"; }

std::vector<Side> againstFloor() {
  const Place place = std::make_shared<TemporaryFolder>();
  const fs::path system = buildFullRoom(place->emptied("built"));
  const auto build = [place] {
    const fs::path out = place->emptied("out");
    return costOfProcesses(
        {{ORLENA_PROGRAM, "build", fullAnswers().string(), "--out", out.string()}});
  };
  const auto floor = [place, system] {
    const fs::path out = place->emptied("floor");
    return costOfProcesses(
        {{ORLENA_FLOOR, fullAnswers().string(), templateSystem().string(),
          shippedLibrary().string(), system.string(), (out / "Room" / "Room.tsy").string()}});
  };
  return {{"orlena build, a full room", build},
          {"a process that reads and writes the same files", floor}};
}

std::vector<Side> withLargeLibrary() {
  const Place place = std::make_shared<TemporaryFolder>();
  const fs::path large = writeLargeLibrary(place->path() / "large", 10'000);
  Process({ORLENA_PROGRAM, "library", large.string()}).wait();
  const auto buildWith = [place](const fs::path& library) {
    const fs::path out = place->emptied("out");
    return costOfProcesses({{ORLENA_PROGRAM, "build", fullAnswers().string(), "--out", out.string(),
                             "--library", library.string()}});
  };
  return {{"orlena build, a library of 10,000 devices", [=] { return buildWith(large); }},
          {"orlena build, the shipped one", [=] { return buildWith(shippedLibrary()); }}};
}

/// Answers files for the full room under names of their own.
std::vector<std::string> writeAnswers(const fs::path& folder, int count) {
  Json answers = Json::parse(base::readFile(fullAnswers()));
  fs::create_directories(folder);
  std::vector<std::string> files;
  for (int i = 1; i <= count; ++i) {
    answers["name"] = "Room " + std::to_string(i);
    const fs::path file = folder / (std::to_string(i) + ".json");
    base::replaceFile(file, answers.dump());
    files.push_back(file.string());
  }
  return files;
}

Command buildCommand(const std::vector<std::string>& answers, const fs::path& out, int jobs = 1) {
  Command command{ORLENA_PROGRAM, "build", "--out", out.string(), "--jobs", std::to_string(jobs)};
  command.insert(command.end(), answers.begin(), answers.end());
  return command;
}

Side batchOf(int rooms, const Place& place) {
  const std::string name = std::to_string(rooms);
  const auto answers = writeAnswers(place->path() / ("answers " + name), rooms);
  const auto build = [place, answers] {
    return costOfProcesses({buildCommand(answers, place->emptied("out"))});
  };
  return {"a room in a batch of " + name, build, static_cast<double>(rooms)};
}

std::vector<Side> batches() {
  const Place place = std::make_shared<TemporaryFolder>();
  return {batchOf(1000, place), batchOf(10, place)};
}

/// What no way of making a room can do without.
Side parts(const Place& place) {
  constexpr int times = 20;
  const fs::path system = buildFullRoom(place->emptied("parts"));
  const auto room = std::make_shared<Room>(system);
  const auto library = std::make_shared<const trellisar::DeviceLibrary>(shippedLibrary());
  const auto run = [=] {
    room->choose();
    return costOf([&] {
      for (int i = 0; i < times; ++i) {
        Room::generate();
        trellisar::readSystemFile(system, library);
        trellisar::saveSystemFile(room->data(), forms::fromMachinePath(system));
      }
    });
  };
  return {"one run of the generator, one open and one save", run, times};
}

std::vector<Side> batchAgainstParts() {
  const Place place = std::make_shared<TemporaryFolder>();
  return {batchOf(1000, place), parts(place)};
}

std::vector<Side> sideBySide() {
  constexpr int rooms = 100;
  const Place place = std::make_shared<TemporaryFolder>();
  const auto answers = writeAnswers(place->path() / "answers", rooms);
  const auto middle = answers.begin() + rooms / 2;
  const std::vector<std::string> firstHalf(answers.begin(), middle);
  const std::vector<std::string> secondHalf(middle, answers.end());
  const auto jobs = [place, answers](int count) {
    return costOfProcesses({buildCommand(answers, place->emptied("out"), count)});
  };
  const auto processes = [place, firstHalf, secondHalf] {
    const fs::path out = place->emptied("out");
    return costOfProcesses({buildCommand(firstHalf, out), buildCommand(secondHalf, out)});
  };
  return {{"100 rooms, two jobs", [jobs] { return jobs(2); }},
          {"100 rooms, two processes with half of them each", processes},
          {"100 rooms, one job", [jobs] { return jobs(1); }}};
}

}  // namespace

std::vector<Figure> processFigures() {
  return {{"a room as a process", {Aim::Bound::atMost, 3}, 101, againstFloor},
          {"a large library", {Aim::Bound::atMost, 1.3}, 101, withLargeLibrary},
          {"a room in a batch", {Aim::Bound::atMost, 1.5}, 5, batchAgainstParts},
          {"a large batch", {Aim::Bound::atMost, 1.05}, 5, batches},
          {"two jobs", {Aim::Bound::atLeast, 0.9}, 11, sideBySide}};
}

}  // namespace bench
