#include "addin/Enumerations.h"
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

//  Motion_Detected goes low
//    call System Power Off
//    Room_Occupied low      Kestrum, written before
bool BuildNoMotionTimeout(std::int16_t iSensorID) {
  const bool bMonitored = IsInSystem(addin::gAddIn().get_KestrumID());
  return ConnectEventToGlobalPreset(iSensorID, sMotionDetected, host::eventLow,
                                    GetSystemPowerPreset(addin::pdOff).sName,
                                    /*bClear=*/!bMonitored);
}

}  // namespace

// Without a timeout the sensor keeps its property and what no motion does.
bool Generate::BuildMotionSensor() {
  const addin::IAddIn& settings = addin::gAddIn();
  const std::int16_t iSensorID = settings.get_OccupancySensorID();
  const std::int16_t iSeconds = settings.get_MotionSensorTimeout();
  if (!IsInSystem(iSensorID) || iSeconds <= 0) return true;
  const auto sensor = addin::gDocument().get_Devices()->Item(iSensorID);
  return SetProperty(m_run, *sensor, "Timeout", forms::decimal(iSeconds)) &&
         BuildNoMotionTimeout(iSensorID);
}

}  // namespace generator
