#include "tests/trellisar/World.h"

#include "forms/Components.h"
#include "forms/Paths.h"

namespace tests {

namespace fs = std::filesystem;

HostTest::HostTest() : host({.dataFolder = dataFolder(), .library = shippedLibrary()}) {
  application.setTitle("Trellisar");
  desktop.wheneverShown("DoneDialog", [this](forms::Form& form) {
    lastWords = form.control("lblState").shownText();
    user.press(forms::keys::escape);
  });
}

trellisar::Document& HostTest::openTemplate() {
  const fs::path file = dataFolder() / "TemplateSystems/Orlena TEMPLATE/Orlena TEMPLATE.tsy";
  if (!host.mainWindow()->FileOpen(forms::fromMachinePath(file), false)) {
    throw std::runtime_error("the template could not be opened");
  }
  return *host.document();
}

std::int16_t HostTest::add(const std::string& name, std::int16_t entry) {
  host::AddDeviceArguments arguments;
  arguments.strName = name;
  arguments.strParentName = host.document()->get_ControlSystem()->get_Name();
  arguments.iSlot = host::slotReceiverPorts;
  arguments.iControlEntryID = entry;
  EXPECT_TRUE(host.mainWindow()->AddDevice(arguments)) << arguments.strError;
  return arguments.iDeviceID;
}

void HostTest::saveAsRoom() {
  data().name = "Room";
  data().folder = folder.inside("Room\\");
  EXPECT_TRUE(window().FileSaveAs(folder.inside("Room\\Room"), "Orlena"));
}

std::shared_ptr<host::Preset> HostTest::preset(const std::string& name) {
  return host.document()->get_Presets()->FindByName(name);
}

bool HostTest::append(host::Preset& preset, std::int16_t kind, std::int16_t targetType,
                      std::int32_t target, const std::string& signal, const std::string& value) {
  const auto step = forms::createObject<host::Step>(host::progIDStep);
  preset.InsertStep(static_cast<std::int16_t>(preset.get_StepCount() + 1), step);
  if (!step->Init(kind, targetType, 0, target, signal)) return false;
  if (!value.empty()) step->put_Value(value);
  return true;
}

std::shared_ptr<host::Preset> HostTest::branch(host::Preset& preset, std::int16_t device,
                                               const std::string& signal) {
  const auto condition = std::make_shared<host::StepCondition>();
  condition->put_DeviceID(device);
  condition->put_ConditionType(host::conditionDigitalValue);
  condition->put_SignalName(signal);
  condition->put_Value(1);
  const auto group = std::make_shared<host::StepConditionGroup>();
  group->Add(condition);
  const auto step = forms::createObject<host::Step>(host::progIDStep);
  EXPECT_TRUE(step->Init(host::stepConditional, host::targetNone, 0, 0, ""));
  step->put_Conditions(group);
  EXPECT_TRUE(preset.InsertStep(static_cast<std::int16_t>(preset.get_StepCount() + 1), step));
  return host.document()->get_Presets()->ItemByID(step->get_SubPresetID());
}

}  // namespace tests
