#include "bench/LargeLibrary.h"

#include <string>
#include <vector>

#include "app/Environment.h"
#include "base/FileIO.h"
#include "base/Json.h"

namespace bench {
namespace {

namespace fs = std::filesystem;
using base::Json;

constexpr std::size_t devicesOfMaker = 60;
constexpr int firstOwnEntry = 10'000;

/// Hands out the devices of the shipped makers, again and again.
class Devices {
 public:
  explicit Devices(const std::vector<Json>& files) {
    for (const Json& file : files) {
      if (file["maker"] == "" || file.contains("receivers")) continue;
      if (!file.contains("devices")) continue;
      for (const Json& device : file["devices"]) shipped_.push_back(device);
    }
  }

  Json next() {
    Json device = shipped_[taken_ % shipped_.size()];
    const std::string round = std::to_string(taken_ / shipped_.size() + 2);
    device["name"] = device["name"].get<std::string>() + " " + round;
    device["entry"] = firstOwnEntry + static_cast<int>(taken_++);
    return device;
  }

 private:
  std::vector<Json> shipped_;
  std::size_t taken_ = 0;
};

void write(const fs::path& file, const Json& json) { base::replaceFile(file, json.dump(2)); }

}  // namespace

fs::path writeLargeLibrary(const fs::path& folder, int devices) {
  fs::copy(app::dataFolder() / "library", folder);
  Json index = Json::parse(base::readFile(folder / "index.json"));
  std::vector<Json> files;
  int written = 0;
  for (const Json& name : index["files"]) {
    files.push_back(Json::parse(base::readFile(folder / name.get<std::string>())));
    if (files.back().contains("devices"))
      written += static_cast<int>(files.back()["devices"].size());
  }
  Devices further(files);
  for (int number = 1; written < devices; ++number) {
    const std::string maker = "Maker " + std::to_string(number);
    Json file{{"format", "trellisar-devices"}, {"version", 1}, {"maker", maker}};
    for (; file["devices"].size() < devicesOfMaker && written < devices; ++written) {
      file["devices"].push_back(further.next());
    }
    write(folder / (maker + ".json"), file);
    index["files"].push_back(maker + ".json");
  }
  write(folder / "index.json", index);
  return folder;
}

}  // namespace bench
