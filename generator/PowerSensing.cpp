#include "generator/PowerSensing.h"

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Names.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr const char* sSensorFormat = "i4";

/// The receiver's entry in the bill of materials; nothing when there is none, and no part is listed
/// then.
std::shared_ptr<host::BillOfMaterialsEntry> FindReceiverBill() {
  host::Document& document = addin::gDocument();
  const auto receiver = document.get_Devices()->Item(addin::gAddIn().get_ReceiverID());
  return document.get_Reports()->get_BillOfMaterials()->Item(receiver->get_DeviceHandle());
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

std::int16_t AddPowerSensingModule(Run& run, DevicePtr& device) {
  auto module = FindModule(*device, sSensingModule);
  if (!module) {
    const host::ModuleList colModules = ModulesFromLibrary(sSensingModule, device->get_ID());
    if (addin::gDocument().get_Devices()->AddModules(colModules, device) == 0) {
      return addin::iNoDevice;
    }
    module = FindModule(*device, sSensingModule);
  }
  if (!module) return addin::iNoDevice;
  module->put_ShowInTree(false);
  module->put_SensorHandle(run.GetPowerSensorHandle());
  module->put_SensorFormat(sSensorFormat);
  FillEmptySlots(*device, *module);
  return module->get_ID();
}

void AddPowerSensorPart() {
  const auto bill = FindReceiverBill();
  if (!bill) return;
  const auto parts = bill->get_Parts();
  if (!parts->Exists(host::partKeyPowerSensor)) parts->Add(host::partPowerSensor, 1);
}

void RemovePowerSensorPart() {
  const auto bill = FindReceiverBill();
  if (!bill) return;
  const auto parts = bill->get_Parts();
  if (parts->Exists(host::partKeyPowerSensor)) parts->Remove(host::partKeyPowerSensor);
}

}  // namespace generator
