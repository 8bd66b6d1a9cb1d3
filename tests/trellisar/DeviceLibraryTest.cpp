#include "tests/trellisar/World.h"
#include "trellisar/library/DeviceLibrary.h"
#include "trellisar/window/Pictures.h"

namespace tests {
namespace {

namespace fs = std::filesystem;
using trellisar::DeviceLibrary;

std::string indexOf(const std::string& files) {
  return R"({"format": "trellisar-device-library", "version": 1, "files": [)" + files + "]}";
}

std::string aFile(const std::string& deviceKeys) {
  return R"({"format": "trellisar-devices", "version": 1, "maker": "A", "devices": [
            {"name": "One", "entry": 1, "model_id": 0, "model": "", "type": 2, "category": "C",
             "kind": 1, "slot": 15, "description": "", "connection": "serial")" +
         deviceKeys + "}]}";
}

class DeviceLibraryTest : public testing::Test {
 protected:
  /// What looking for a device says behind the folder; empty when it says nothing.
  std::string errorWith(const std::string& indexText, const std::string& file) {
    folder.write("index.json", indexText);
    folder.write("a.json", file);
    const std::string text =
        raisedBy([&] { DeviceLibrary(folder.path()).findDevice("None"); }).description();
    return text.substr(text.find('/') + 1);
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
  const std::string index = indexOf("\"a.json\"");
  for (const auto& [keys, error] : cases) {
    EXPECT_EQ(errorWith(index, aFile(keys)), "a.json: " + error);
  }
  EXPECT_EQ(errorWith(index, aFile("")), "");
  EXPECT_EQ(errorWith(index, R"({"format": "x"})"),
            "a.json: format: must be \"trellisar-devices\"");
  EXPECT_EQ(errorWith(indexOf("\"b.json\""), ""),
            "index.json: files[0]: \"b.json\" is not in the folder");
}

TEST_F(DeviceLibraryTest, ReadsOnlyTheFilesItIsAskedFor) {
  folder.write("index.json", indexOf(R"("a.json", "b.json")"));
  folder.write("a.json", aFile(""));
  folder.write("b.json", "broken");
  const DeviceLibrary library(folder.path());
  ASSERT_NE(library.findDevice("One"), nullptr);
  EXPECT_THROW(library.findDevice("Two"), host::Error);
  EXPECT_THROW(library.check(), host::Error);
}

TEST(ShippedLibrary, PassesItsCheck) { EXPECT_NO_THROW(shippedLibrary()->check()); }

TEST(ShippedLibrary, SendsNoCommandThroughAnInput) {
  using Connection = trellisar::Definition::Connection;
  for (const auto& device : shippedLibrary()->all(trellisar::Definition::Form::device)) {
    const bool isInput =
        device->connection == Connection::contact || device->connection == Connection::sensor;
    EXPECT_TRUE(!isInput || device->commands.empty()) << device->name;
    EXPECT_TRUE(device->terminals.empty() || device->connection == Connection::relay)
        << device->name;
    for (const std::string& terminal : device->terminals) {
      EXPECT_TRUE(device->findCommand(terminal)) << device->name << ": " << terminal;
    }
  }
}

TEST(ShippedLibrary, FilterLeavesTheTypesThatItNames) {
  const trellisar::LibraryManager manager(shippedLibrary(), "\\pictures");
  const auto all = manager.offered("Screen").size();
  EXPECT_GT(all, 0u);
  manager.get_DeviceTypes()->put_DeviceFilter(std::vector<std::int16_t>{1});
  EXPECT_EQ(manager.offered("Screen").size(), 0u);
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
