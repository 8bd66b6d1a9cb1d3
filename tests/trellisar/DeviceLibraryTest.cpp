#include <algorithm>
#include <set>

#include "host/Error.h"
#include "tests/trellisar/World.h"
#include "trellisar/Definition.h"
#include "trellisar/DeviceLibrary.h"
#include "trellisar/FileIO.h"
#include "trellisar/Pictures.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using trellisar::DefinitionPtr;
using trellisar::DeviceLibrary;
using Form = trellisar::Definition::Form;

constexpr const char* index = R"({"format": "trellisar-device-library", "version": 1,
                                  "files": ["a.json"]})";

std::string aFile(const std::string& deviceKeys) {
  return R"({"format": "trellisar-devices", "version": 1, "maker": "A", "devices": [
            {"name": "One", "entry": 1, "model_id": 0, "model": "", "type": 2, "category": "C",
             "kind": 1, "slot": 15, "description": "", "connection": "serial")" +
         deviceKeys + "}]}";
}

class DeviceLibraryTest : public testing::Test {
 protected:
  /// What looking for a device says; empty when it says nothing.
  std::string errorWith(const std::string& indexText, const std::string& file) {
    writeFile(folder.path() / "index.json", indexText);
    writeFile(folder.path() / "a.json", file);
    try {
      DeviceLibrary(folder.path()).findDevice("None");
    } catch (const host::Error& error) {
      const std::string text = error.description();
      const std::string name = folder.path().filename().string() + "/";
      EXPECT_EQ(text.find(name), 0u) << text;
      return text.substr(name.size());
    }
    return {};
  }

  TemporaryFolder folder;
};

TEST_F(DeviceLibraryTest, ErrorsNameTheFileAndThePlace) {
  const std::pair<std::string, std::string> cases[] = {
      {R"(, "commands": [{"name": "On", "kind": "hold"}])",
       R"(devices[0].commands[0].kind: "hold" is none of "momentary", "pulse", "held")"},
      {R"(, "color": 1)", "devices[0].color: is no key that is known here"},
      {R"(, "entry": 1)", "devices[0].entry: the key stands twice"},
      {R"(, "second_off": 1)", "devices[0].second_off: must be true or false"},
      {R"(, "standard_commands": {"166": "On"})",
       R"(devices[0].standard_commands.166: "On" is no command here)"},
      {R"(, "standard_commands": {"on": "On"})",
       "devices[0].standard_commands.on: the key must be a standard command id"},
      {R"(, "commands": [{"name": "On", "kind": "held"}, {"name": "On", "kind": "held"}])",
       R"(devices[0].commands[1].name: "On" stands twice)"},
      {R"(, "properties": [{"name": "P", "value": "3", "type": "integer", "minimum": 4,
            "maximum": 9}])",
       R"(devices[0].properties[0].value: "3" is not what the property takes)"},
      {R"(, "part": 0)", "devices[0].part: must be a whole number from 1 to 2147483647"},
  };
  for (const auto& [keys, error] : cases) {
    EXPECT_EQ(errorWith(index, aFile(keys)), "a.json: " + error);
  }
  EXPECT_EQ(errorWith(index, aFile("")), "");
  EXPECT_EQ(errorWith(index, R"({"format": "x"})"),
            "a.json: format: must be \"trellisar-devices\"");
  EXPECT_EQ(
      errorWith(R"({"format": "trellisar-device-library", "version": 1, "files": ["b.json"]})", ""),
      "index.json: files[0]: \"b.json\" is not in the folder");
}

TEST_F(DeviceLibraryTest, ReadsOnlyTheFilesItIsAskedFor) {
  writeFile(
      folder.path() / "index.json",
      R"({"format": "trellisar-device-library", "version": 1, "files": ["a.json", "b.json"]})");
  writeFile(folder.path() / "a.json", aFile(""));
  writeFile(folder.path() / "b.json", "broken");
  const DeviceLibrary library(folder.path());
  ASSERT_NE(library.findDevice("One"), nullptr);
  EXPECT_THROW(library.findDevice("Two"), host::Error);
  EXPECT_THROW(library.check(), host::Error);
}

TEST_F(DeviceLibraryTest, FileThatTheIndexDoesNotNameIsAnErrorOfTheCheck) {
  writeFile(folder.path() / "index.json", index);
  writeFile(folder.path() / "a.json", aFile(""));
  writeFile(folder.path() / "stray.json", "{}");
  EXPECT_THROW(DeviceLibrary(folder.path()).check(), host::Error);
}

class ShippedLibrary : public testing::Test {
 protected:
  std::vector<DefinitionPtr> ofCategory(const std::string& category) {
    std::vector<DefinitionPtr> devices = shippedLibrary()->all(Form::device);
    std::erase_if(devices, [&](const DefinitionPtr& d) { return d->category != category; });
    return devices;
  }

  template <typename Test>
  static bool any(const std::vector<DefinitionPtr>& devices, Test test) {
    return std::any_of(devices.begin(), devices.end(), [&](const auto& d) { return test(*d); });
  }
};

TEST_F(ShippedLibrary, PassesItsCheckAndHoldsTheFixedCast) {
  ASSERT_NO_THROW(shippedLibrary()->check());
  const auto& library = *shippedLibrary();
  const std::pair<std::int16_t, std::int16_t> cast[] = {
      {host::entryPowerRelay, host::modelPowerRelay},
      {host::entryDigitalInput, host::modelDigitalInput},
      {host::entryMotionDetector, host::modelMotionDetector},
      {host::entryKestrum, host::modelKestrum}};
  for (const auto& [entry, model] : cast) {
    const DefinitionPtr device = library.findEntry(entry);
    ASSERT_NE(device, nullptr) << entry;
    EXPECT_EQ(device->modelId, model);
    EXPECT_EQ(device->slot, host::slotReceiverPorts);
    EXPECT_NE(device->kind, host::kindUsable);
  }
  for (const std::int16_t model : {host::modelReceiverOneInput, host::modelReceiverThreeInputs}) {
    const DefinitionPtr receiver = library.findReceiver(model);
    ASSERT_NE(receiver, nullptr);
    for (const char* name : {"RGB_Selected", "Composite_Video_Selected", "Input_Error",
                             "Powered_On", "Powered_Off", "System_Ready_Pulse"}) {
      EXPECT_TRUE(receiver->hasSignal(name, host::directionOutput, host::signalDigital)) << name;
    }
    for (const char* name : {"Lock", "Unlock", "Power_Off", "Volume_Mute_On", "Volume_Mute_Off"}) {
      EXPECT_NE(receiver->findCommand(name), nullptr) << name;
    }
  }
  ASSERT_NE(library.findInterface(host::modelFenlet), nullptr);
  EXPECT_TRUE(library.findInterface(host::modelFenlet)->projectPanel);
  EXPECT_NE(library.findModel(host::modelPowerSensor), nullptr);
}

TEST_F(ShippedLibrary, OffersEveryCaseOfDisplayScreenLiftAndTransmitter) {
  const auto displays = ofCategory("Video/Data Projector");
  EXPECT_GE(displays.size(), 40u);
  std::set<std::string> makers;
  for (const auto& display : displays) makers.insert(display->maker);
  EXPECT_GE(makers.size(), 8u);

  const auto hasDefault = [](const trellisar::Definition& d, std::int16_t id) {
    return !d.defaultCommand(id).empty();
  };
  const auto isDiscrete = [&](const auto& d) {
    return hasDefault(d, host::scOn) && hasDefault(d, host::scOff);
  };
  const auto isToggle = [&](const auto& d) { return !isDiscrete(d) && d.findCommand("POWER"); };
  EXPECT_TRUE(any(displays, isDiscrete));
  EXPECT_TRUE(any(displays, isToggle));
  EXPECT_TRUE(any(displays, [&](const auto& d) { return !isDiscrete(d) && !isToggle(d); }));
  EXPECT_TRUE(any(displays, [&](const auto& d) { return !hasDefault(d, host::scVideo1); }));
  EXPECT_TRUE(any(displays, [&](const auto& d) { return d.secondOff && isDiscrete(d); }));
  EXPECT_TRUE(any(displays, [&](const auto& d) { return !d.secondOff && isDiscrete(d); }));
  for (const char* lamp : {"Lamp_Hours", "LampHours", "Lamp_Hours_Analog"}) {
    EXPECT_TRUE(any(displays, [&](const auto& d) {
      return d.hasSignal(lamp, host::directionOutput, host::signalAnalog);
    })) << lamp;
  }

  for (const char* category : {"Screen", "Projector Lift"}) {
    const auto devices = ofCategory(category);
    EXPECT_GE(devices.size(), std::string(category) == "Screen" ? 12u : 8u);
    EXPECT_TRUE(any(devices, [&](const auto& d) { return !hasDefault(d, host::scUp); }));
    EXPECT_TRUE(any(devices, [&](const auto& d) { return !hasDefault(d, host::scDown); }));
    for (const bool isPulse : {true, false}) {
      EXPECT_TRUE(any(devices, [&](const auto& d) {
        const auto* down = d.findCommand(d.defaultCommand(host::scDown));
        return down && (down->type == host::commandPulse) == isPulse;
      })) << category;
    }
  }

  std::vector<DefinitionPtr> transmitters = shippedLibrary()->all(Form::device);
  std::erase_if(transmitters, [](const auto& d) { return d->kind != host::kindUsable; });
  EXPECT_EQ(transmitters.size(), 5u);
  EXPECT_TRUE(any(transmitters, [](const auto& d) { return d.part == 0; }));
  EXPECT_FALSE(any(transmitters, [](const auto& d) {
    return d.category != "Transmitter" || d.slot != host::slotReceiverPorts;
  })) << "whatever is of this kind is offered as a transmitter";
}

TEST_F(ShippedLibrary, FilterLeavesTheTypesThatItNames) {
  const trellisar::LibraryManager manager(shippedLibrary(), "\\pictures");
  const auto all = manager.offered("Screen").size();
  EXPECT_GT(all, 0u);
  manager.get_DeviceTypes()->put_DeviceFilter(std::vector<std::int16_t>{1});
  EXPECT_EQ(manager.offered("Screen").size(), 0u);
  manager.get_DeviceTypes()->put_DeviceFilter(std::vector<std::int16_t>{
      1070, 1992, 1982, 1983, 1071, 1984, 1985, 1986, 1987, 1988, 1989, 1993, 2494});
  EXPECT_EQ(manager.offered("Screen").size(), all);
  EXPECT_GE(manager.offered("Video/Data Projector").size(), 40u);
  manager.get_DeviceTypes()->put_DeviceFilter(std::nullopt);
  EXPECT_EQ(manager.offered("Screen").size(), all);
}

TEST(ShippedPictures, AreAllThere) {
  const auto pictures = trellisar::readPictures(dataFolder() / "pictures");
  EXPECT_GE(pictures.large.count(), 174);
  EXPECT_GE(pictures.small.count(), 166);
  for (const auto* list : {&pictures.small, &pictures.large}) {
    for (std::int16_t number = 1; number <= list->count(); ++number) {
      EXPECT_TRUE(fs::is_regular_file(list->item(number).file())) << list->item(number).file();
    }
  }
}

}  // namespace
}  // namespace tests
