#include "tests/generator/Room.h"

#include <stdexcept>

#include "addin/modGlobals.h"
#include "forms/Paths.h"
#include "trellisar/DeviceLibrary.h"

namespace tests {
namespace {

constexpr std::int16_t displayEntry = 1105;

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

}  // namespace

std::filesystem::path templateSystem() {
  return dataFolder() / "TemplateSystems" / "Orlena TEMPLATE" / "Orlena TEMPLATE.tsy";
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

void Room::givenDisplay(std::int16_t powerControl) {
  addIn_->put_DisplayDeviceID(addDevice("Display Device", displayEntry));
  display()->put_PowerControlType(powerControl);
}

void Room::givenNoCommand(std::int16_t device, std::int16_t standardCommand) {
  bool changed = false;
  document().get_Devices()->Item(device)->SetCommandName(std::to_string(standardCommand), "",
                                                         changed);
}

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
  for (const auto& item : builder_->GetErrorItems()) {
    messages.push_back(std::to_string(item->get_Severity()) + " " + item->get_Message());
  }
  return messages;
}

std::shared_ptr<host::Preset> Room::preset(const std::string& name) const {
  return document().get_Presets()->FindByName(name);
}

std::string Room::steps(const std::string& presetName) const {
  const auto found = preset(presetName);
  return found ? steps(*found) : "absent";
}

std::string Room::steps(const host::Preset& preset) const {
  std::string text;
  for (const auto& next : preset.get_Steps()) text += (text.empty() ? "" : "; ") + step(*next);
  return text;
}

std::string Room::nameOf(std::int16_t id) const {
  if (id == addIn_->get_ReceiverID()) return "Receiver";
  const auto device = document().get_Devices()->ItemByID(id);
  if (!device) return "?";
  return device->get_ShortName().empty() ? device->get_Name() : device->get_ShortName();
}

std::string Room::step(const host::Step& step) const {
  const auto presets = document().get_Presets();
  switch (step.get_Kind()) {
    case host::stepCallPreset:
      return "call " + presets->ItemByID(step.get_TargetID())->get_Name();
    case host::stepDelay:
      return nameOf(static_cast<std::int16_t>(step.get_TargetID())) + " waits " + step.get_Value();
    case host::stepConditional: {
      const host::StepCondition test = *step.get_Conditions()->Items().front();
      return "if " + nameOf(test.get_DeviceID()) + "." + test.get_SignalName() + "=" +
             std::to_string(test.get_Value()) + " { " +
             steps(*presets->ItemByID(step.get_SubPresetID())) + " }";
    }
    default:
      return nameOf(static_cast<std::int16_t>(step.get_TargetID())) + "." + step.get_SignalName() +
             (step.get_Value().empty() ? "" : "~" + step.get_Value());
  }
}

std::string Room::receiverEvent(const std::string& output) const {
  const auto signal =
      document().get_Signals()->Find(addIn_->get_ReceiverID(), output, "", host::signalDigital);
  return signal ? steps(*signal->GetEvent(host::eventHigh)->get_Preset()) : "absent";
}

std::string Room::program() const {
  std::string text;
  for (const char* name :
       {"System Power On", "System Power Off", "Display Power On", "Display Power Off"}) {
    text += std::string(name) + ": " + steps(name) + "\n";
  }
  return text + "Powered_On: " + receiverEvent("Powered_On") +
         "\nPowered_Off: " + receiverEvent("Powered_Off") + "\n";
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
