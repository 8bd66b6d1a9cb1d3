#include <cstdlib>

#include "base/FileIO.h"
#include "tests/trellisar/World.h"
#include "trellisar/document/Provisioning.h"

/// The template and the example system are made here. After a change of the system file's form or
/// of the library's receiver, run this test once with TRELLISAR_RENEW=1 in the environment and look
/// at the difference.
namespace tests {
namespace {

using trellisar::addDevice;
using trellisar::DocumentData;

trellisar::DevicePtr added(DocumentData& system, const trellisar::DefinitionPtr& definition,
                           const std::string& name, std::int16_t parent) {
  std::string error;
  const trellisar::DevicePtr device = addDevice(system, definition, name, parent, error);
  if (!device) throw std::runtime_error(error);
  return device;
}

/// What every room begins with: the receiver, its four digital inputs, the six presets and the
/// receiver's bill entry.
trellisar::DocumentPtr emptyRoom(const std::string& name) {
  const auto library = shippedLibrary();
  auto system = std::make_shared<DocumentData>(library);
  system->name = name;
  const auto receiverModel = library->findReceiver(host::modelReceiverOneInput);
  const auto receiver = added(*system, receiverModel, "Receiver", 0);
  system->controlSystem = receiver->id;
  for (const char* number : {"1", "2", "3", "4"}) {
    const auto input = added(*system, library->findEntry(host::entryDigitalInput),
                             std::string("Digital Input ") + number, receiver->id);
    input->shown = false;
  }
  auto entry = std::make_shared<trellisar::BillEntryData>();
  entry->key = receiver->handle;
  entry->main.part = receiverModel->part;
  system->bill.push_back(entry);
  for (const char* presetName : {"System Power On", "System Power Off", "Display Power On",
                                 "Display Power Off", "System Lock", "System Unlock"}) {
    const auto preset = system->makePreset();
    preset->name = presetName;
    system->addNamedPreset(preset);
  }
  return system;
}

trellisar::DocumentPtr templateSystem() {
  auto system = emptyRoom("Orlena TEMPLATE");
  system->application = "Trellisar";
  return system;
}

trellisar::DocumentPtr exampleSystem() {
  auto system = emptyRoom("Orlena EXAMPLE");
  system->application = "Orlena";
  constexpr std::int16_t plainTouchPanel = 52;
  const auto panel = added(*system, shippedLibrary()->findInterface(plainTouchPanel), "Touch Panel",
                           system->controlSystem);
  panel->connectSlot = host::slotReceiverPorts;
  return system;
}

void expectShipped(const DocumentData& system) {
  const auto file = dataFolder() / "TemplateSystems" / system.name / (system.name + ".tsy");
  const std::string text = trellisar::systemFileText(system);
  if (std::getenv("TRELLISAR_RENEW")) {
    std::filesystem::create_directories(file.parent_path());
    base::replaceFile(file, text);
  }
  EXPECT_EQ(base::readFile(file), text) << file;
}

TEST(TemplateSystems, AreWhatTheyAreMadeOf) {
  expectShipped(*templateSystem());
  expectShipped(*exampleSystem());
}

}  // namespace
}  // namespace tests
