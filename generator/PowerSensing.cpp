#include "addin/Enumerations.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr const char* sSensorFormat = "i4";

void AddPowerSensorPart(host::BillOfMaterialsEntry* bill) {
  if (!bill) return;
  const auto parts = bill->get_Parts();
  if (!parts->Exists(host::partKeyPowerSensor)) parts->Add(host::partPowerSensor, 1);
}

/// A display with one command for on and off gets it in both directions; the sensor tells the
/// module when to send it.
void FillEmptySlots(const host::Device& device, const host::Device& module) {
  for (const auto& slot : module.get_CommandSlots()) {
    if (!slot->get_CommandName().empty()) continue;
    if (device.HasSignal(host::commandPowerToggle, host::directionInput, host::signalDigital)) {
      slot->put_CommandName(host::commandPowerToggle);
    }
  }
}

}  // namespace

bool Generate::BuildSensedPower(std::int16_t ePowerOnOrOff, DevicePtr display,
                                host::BillOfMaterialsEntry* bill) {
  const std::int16_t iModuleID = AddPowerSensingModule(display);
  AddPowerSensorPart(bill);
  if (iModuleID == 0) return m_run.Fail("Failed to add Power Sensing module.");
  return AddSensedPowerSteps(ePowerOnOrOff, iModuleID);
}

//  Display Power On                       Display Power Off
//    Relay_Close  power relay               Power_Off    sensing module
//    delay        power relay               delay        power relay
//    Power_On     sensing module            Relay_Open   power relay
bool Generate::AddSensedPowerSteps(std::int16_t ePowerOnOrOff, std::int16_t iModuleID) {
  const std::string sSlot = GetModulePowerSlot(ePowerOnOrOff);
  const auto preset = FindSequence(m_run, GetDisplayPowerPreset(ePowerOnOrOff).sName);
  if (!preset) return false;
  preset->ClearSteps();

  if (ePowerOnOrOff == addin::pdOn) AppendRelayCloseSteps(*preset);
  AppendStep(*preset, Command(iModuleID, sSlot));
  if (ePowerOnOrOff == addin::pdOff) AppendRelayOpenSteps(*preset);
  return true;
}

std::int16_t Generate::AddPowerSensingModule(DevicePtr& device) {
  auto module = FindModule(*device, sSensingModule);
  if (!module) {
    const host::ModuleList colModules = ModulesFromLibrary(sSensingModule, device->get_ID());
    if (addin::gDocument().get_Devices()->AddModules(colModules, device) == 0) return 0;
    module = FindModule(*device, sSensingModule);
  }
  if (!module) return 0;
  module->put_ShowInTree(false);
  module->put_SensorHandle(m_run.GetPowerSensorHandle());
  module->put_SensorFormat(sSensorFormat);
  FillEmptySlots(*device, *module);
  return module->get_ID();
}

}  // namespace generator
