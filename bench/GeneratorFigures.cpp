#include <stdexcept>

#include "base/FileIO.h"
#include "base/Json.h"
#include "bench/DeepCopy.h"
#include "bench/Figure.h"
#include "bench/Process.h"
#include "bench/Room.h"
#include "host/Numbers.h"
#include "trellisar/document/SystemFile.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using base::Json;

/// A room that has been generated once already.
std::shared_ptr<Room> generatedRoom(const fs::path& system) {
  auto room = std::make_shared<Room>(system);
  room->generate();
  return room;
}

Side generating(const char* what, std::shared_ptr<Room> room) {
  return {what, [room = std::move(room)] {
            room->choose();
            return costOf(Room::generate);
          }};
}

/// The copy of the turn before is given back within the turn, as a run gives back the program that
/// it replaces.
Side copying(const char* what, std::shared_ptr<Room> room) {
  auto kept = std::make_shared<std::shared_ptr<trellisar::DocumentData>>();
  return {what, [room = std::move(room), kept] {
            return costOf([&] { *kept = deepCopy(room->data()); });
          }};
}

std::vector<Side> againstCopy() {
  const TemporaryFolder folder;
  const auto room = generatedRoom(buildFullRoom(folder.path()));
  if (trellisar::systemFileText(*deepCopy(room->data())) !=
      trellisar::systemFileText(room->data())) {
    throw std::runtime_error("the copy of the document is another document");
  }
  return {generating("the second run of the generator, a full room", room),
          copying("a deep copy of the room's document", room)};
}

constexpr int ownPresets = 10'000;

/// The user's own presets behind the room's, each with a few steps for the receiver.
fs::path withOwnPresets(const fs::path& system, const fs::path& folder) {
  Json json = Json::parse(base::readFile(system));
  Json step;
  step["kind"] = host::stepDigital;
  step["target_type"] = host::targetDevice;
  step["target"] = json["control_system"];
  step["signal"] = "Power_Off";
  for (int i = 0; i < ownPresets; ++i) {
    json["presets"].push_back({{"name", "Own " + std::to_string(i)},
                               {"comment", ""},
                               {"steps", Json::array({step, step, step})}});
  }
  const fs::path file = folder / "With Own Presets.tsy";
  base::replaceFile(file, json.dump());
  return file;
}

std::vector<Side> withForeignPresets() {
  const TemporaryFolder folder;
  const fs::path system = buildFullRoom(folder.path());
  return {generating("the generator, 10,000 presets of the user's own",
                     generatedRoom(withOwnPresets(system, folder.path()))),
          generating("the generator, none", generatedRoom(system))};
}

}  // namespace

std::vector<Figure> generatorFigures() {
  return {{"generator", {Aim::Bound::atMost, 3}, 2001, againstCopy},
          {"foreign presets", {Aim::Bound::atMost, 1.1}, 2001, withForeignPresets}};
}

}  // namespace bench
