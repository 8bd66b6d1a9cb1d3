#include "tests/generator/Room.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <stdexcept>

#include "addin/modGlobals.h"
#include "forms/Paths.h"
#include "trellisar/DeviceLibrary.h"

namespace tests {
namespace {

const std::filesystem::path& dataFolder() {
  static const std::filesystem::path folder = std::filesystem::path(ORLENA_SOURCE_FOLDER) / "data";
  return folder;
}

/// Read once for all rooms of the program.
std::shared_ptr<const trellisar::DeviceLibrary> library() {
  static const auto shared =
      std::make_shared<const trellisar::DeviceLibrary>(dataFolder() / "library");
  return shared;
}

class NoModules : public host::LibraryManager {
 public:
  std::shared_ptr<host::DeviceTypes> get_DeviceTypes() const override { return nullptr; }
  std::shared_ptr<host::Models> get_Models() const override { return nullptr; }
  std::vector<std::shared_ptr<host::LibraryModule>> get_Modules() const override { return {}; }
  std::string get_PicturesFolder() const override { return {}; }
};

}  // namespace

std::filesystem::path templateSystem() {
  return dataFolder() / "TemplateSystems" / "Orlena TEMPLATE" / "Orlena TEMPLATE.tsy";
}

/// The template with something in it under another name.
std::filesystem::path templateWithout(const std::string& name) {
  std::stringstream text;
  text << std::ifstream(templateSystem()).rdbuf();
  std::string system = text.str();
  const std::string quoted = "\"" + name + "\"";
  for (auto at = system.find(quoted); at != std::string::npos; at = system.find(quoted, at)) {
    system.replace(at, quoted.size(), "\"Another " + name + "\"");
  }
  const auto file = std::filesystem::path(testing::TempDir()) / "generator" / (name + ".tsy");
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file) << system;
  return file;
}

Room::Room(const std::filesystem::path& system)
    : host_({.dataFolder = dataFolder(), .library = library(), .preferencesFile = {}}) {
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

void Room::givenNoModules() { addin::SetLibraryManager(std::make_shared<NoModules>()); }

void Room::givenRelay() {
  addIn_->AddPowerRelay();
  addIn_->put_PowerRelayOnDelay(5);
  addIn_->put_PowerRelayOffDelay(90);
}

void Room::givenSecondPowerOff() {
  addIn_->put_bSecondPowerOff(1);
  addIn_->put_sSecondPowerOff("RGB_1");
  addIn_->put_iSecondPowerOff(3);
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

std::int32_t Room::parts(std::int32_t part) const {
  const auto handle = document().get_ControlSystem()->get_DeviceHandle();
  const auto entry = document().get_Reports()->get_BillOfMaterials()->Item(handle);
  std::int32_t quantity = 0;
  for (const auto& item : entry->get_Parts()->Items()) {
    if (item.get_PartID() == part) quantity += item.get_Quantity();
  }
  return quantity;
}

std::shared_ptr<host::Device> Room::display() const {
  return document().get_Devices()->ItemByID(addIn_->get_DisplayDeviceID());
}

}  // namespace tests
