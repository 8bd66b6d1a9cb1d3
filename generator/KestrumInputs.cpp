#include "addin/Cast.h"
#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Numbers.h"
#include "generator/Devices.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "host/Numbers.h"

namespace generator {
namespace {

/// Custom signal 7 of the interface is for digital input 1, and so on.
constexpr std::int16_t iCustomSignalBeforeInputs = 6;

bool BuildKestrumDigitalInputs(std::int16_t iInput) {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iKestrumID = settings.get_KestrumID();
  const std::string n =
      forms::decimal(static_cast<std::int16_t>(iInput + iCustomSignalBeforeInputs));
  const auto interface = addin::gDocument().get_Devices()->Item(iKestrumID);
  const auto label = interface->GetProperty("Digital_Attribute_" + n + "_Name");
  if (!label) return false;
  static_cast<void>(label->SetValue(addin::DigitalInputName(iInput)));
  const std::string sCommand = "Custom_Digital_Command_" + n;
  const auto signal = addin::gDocument().get_Signals()->Find(
      iKestrumID, sCommand, "Custom_Digital_Notify_" + n, host::signalDigital);
  FeedFrom(Existing(signal, sCommand), settings.GetDigitalInputID(iInput), sContact);
  return true;
}

}  // namespace

bool Generate::BuildKestrumInputs() {
  const addin::IAddIn& settings = addin::gAddIn();
  if (!IsInSystem(settings.get_KestrumID())) return true;
  if (!IsInSystem(settings.get_OccupancySensorID()) &&
      !BuildKestrumDigitalInputs(addin::iOccupancyInput)) {
    return false;
  }
  if (!BuildKestrumDigitalInputs(addin::iContactInput)) return false;
  if (!BuildKestrumDigitalInputs(addin::iMuteInput)) return false;
  if (!IsInSystem(settings.GetDigitalInputID(addin::iPowerSensorInput))) return true;
  return BuildKestrumDigitalInputs(addin::iPowerSensorInput);
}

}  // namespace generator
