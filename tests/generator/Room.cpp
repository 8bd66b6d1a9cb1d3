#include "tests/generator/Room.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "addin/modGlobals.h"
#include "forms/Paths.h"
#include "forms/Text.h"
#include "tests/support/Files.h"

namespace tests {
namespace {

class NoModules : public host::LibraryManager {
 public:
  std::shared_ptr<host::DeviceTypes> get_DeviceTypes() const override { return nullptr; }
  std::shared_ptr<host::Models> get_Models() const override { return nullptr; }
  std::vector<std::shared_ptr<host::LibraryModule>> get_Modules() const override { return {}; }
  std::string get_PicturesFolder() const override { return {}; }
};

}  // namespace

void copyData(const std::filesystem::path& folder, const std::string& text,
              const std::string& replacement) {
  bool isThere = false;
  for (const std::string part : {"library", "TemplateSystems"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(dataFolder() / part)) {
      if (!entry.is_regular_file()) continue;
      const auto copy = folder / std::filesystem::relative(entry.path(), dataFolder());
      const std::string original = fileText(entry.path());
      isThere |= original.find(text) != std::string::npos;
      writeFile(copy, forms::replacedAll(original, text, replacement));
    }
  }
  EXPECT_TRUE(isThere) << text << " is not in the data";
}

Room::Room(const std::filesystem::path& data)
    : host_({.dataFolder = data,
             .library = data == dataFolder()
                            ? shippedLibrary()
                            : std::make_shared<const trellisar::DeviceLibrary>(data / "library"),
             .preferencesFile = {}}) {
  const auto system = data / "TemplateSystems" / "Orlena TEMPLATE" / "Orlena TEMPLATE.tsy";
  const auto document = host_.mainWindow()->FileOpen(forms::fromMachinePath(system), false);
  if (!document) throw std::runtime_error("The system could not be opened: " + system.string());
  addin::SetAddIn(addIn_);
  addin::SetDocument(document);
  addin::SetLibraryManager(host_.libraryManager());
  addin::SetOwnerForm(host_.mainWindow());
  addIn_->FileOpen();
  addIn_->put_PowerOnLockoutTime(0);
  addIn_->put_PowerOffLockoutTime(0);
}

Room::~Room() {
  addin::SetDocument(nullptr);
  addin::SetLibraryManager(nullptr);
  addin::SetOwnerForm(nullptr);
}

std::int16_t Room::addDevice(const std::string& name, std::int16_t controlEntry) {
  givenNo(name);
  host::AddDeviceArguments arguments;
  arguments.strName = name;
  arguments.strParentName = document().get_ControlSystem()->get_Name();
  arguments.iSlot = host::slotReceiverPorts;
  arguments.iControlEntryID = controlEntry;
  if (!host_.mainWindow()->AddDevice(arguments)) throw std::runtime_error(arguments.strError);
  return arguments.iDeviceID;
}

void Room::givenDisplay(std::int16_t powerControl, std::int16_t controlEntry) {
  addIn_->put_DisplayDeviceID(addDevice("Display Device", controlEntry));
  display()->put_PowerControlType(powerControl);
}

void Room::givenNoCommand(std::int16_t device, std::int16_t standardCommand) {
  bool changed = false;
  document().get_Devices()->Item(device)->SetCommandName(std::to_string(standardCommand), "",
                                                         changed);
}

void Room::givenPanel() {
  constexpr std::int16_t touchPanel = 52;
  host_.mainWindow()->AddInterface(touchPanel, document().get_ControlSystem()->get_ID(), "");
}

void Room::givenNo(const std::string& name) {
  const std::string receiver = document().get_ControlSystem()->get_Name();
  if (const auto device = document().get_Devices()->FindByName(name, receiver)) {
    EXPECT_TRUE(document().RemoveDevice(device->get_ID(), host::removalOfDevice));
  }
  if (const auto panel = document().get_Touchpanels()->FindByName(name, receiver)) {
    EXPECT_TRUE(document().RemoveTouchpanel(panel->get_ID(), host::removalOfTouchpanel));
  }
}

void Room::givenNoModules() { addin::SetLibraryManager(std::make_shared<NoModules>()); }

void Room::givenRelay(std::int16_t onSeconds, std::int16_t offSeconds) {
  if (addIn_->get_PowerRelayID() == 0) addIn_->AddPowerRelay();
  addIn_->put_PowerRelayOnDelay(onSeconds);
  addIn_->put_PowerRelayOffDelay(offSeconds);
}

void Room::givenScreen(std::int16_t controlEntry, float onSeconds, float offSeconds) {
  addIn_->put_ScreenDeviceID(addDevice("Screen", controlEntry));
  addIn_->put_PowerOnPulseTime(0, onSeconds);
  addIn_->put_PowerOffPulseTime(0, offSeconds);
}

void Room::givenLift(std::int16_t controlEntry, float onSeconds, float offSeconds) {
  addIn_->put_LiftDeviceID(addDevice("Lift", controlEntry));
  addIn_->put_PowerOnPulseTime(1, onSeconds);
  addIn_->put_PowerOffPulseTime(1, offSeconds);
}

bool Room::build() {
  builder_ = std::make_unique<generator::Generate>();
  return builder_->Build();
}

std::vector<std::string> Room::warnings() const {
  std::vector<std::string> messages;
  for (const auto& item : *builder_->GetErrorItems()) {
    messages.push_back(std::to_string(item->get_Severity()) + " " + item->get_Message());
  }
  return messages;
}

std::shared_ptr<host::Preset> Room::preset(const std::string& name) const {
  return document().get_Presets()->FindByName(name);
}

std::string Room::at(const std::string& place) const {
  const Program all = program();
  const auto found = all.find(place);
  return found == all.end() ? "" : found->second;
}

std::shared_ptr<host::Device> Room::display() const {
  return document().get_Devices()->ItemByID(addIn_->get_DisplayDeviceID());
}

}  // namespace tests
