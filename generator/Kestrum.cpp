#include <algorithm>
#include <array>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "generator/Devices.h"
#include "generator/Events.h"
#include "generator/Generate.h"
#include "generator/Names.h"
#include "generator/Presets.h"
#include "generator/Steps.h"
#include "host/Numbers.h"

namespace generator {
namespace {

struct ErrorTexts {
  const char* sOutput;
  const char* sDetected;
  const char* sCorrected;
};

constexpr ErrorTexts receiverError{"Input_Error", "Orlena Error Detected",
                                   "Orlena Error Corrected"};
/// Of the receiver with three inputs.
constexpr std::array inputErrors{
    ErrorTexts{"Input1_Error", "Input1 Error Detected", "Input1 Error Corrected"},
    ErrorTexts{"Input2_Error", "Input2 Error Detected", "Input2 Error Corrected"},
    ErrorTexts{"Input3_Error", "Input3 Error Detected", "Input3 Error Corrected"},
};

/// In the order in which they are looked for.
constexpr std::array lampHourOutputs{"Lamp_Hours", "LampHours", "Lamp_Hours_Analog"};

struct PresetTrigger {
  const char* sOutput;
  const char* sPreset;
};

constexpr std::array presetTriggers{
    PresetTrigger{"System_Power_Off", sSystemPowerOffPreset},
    PresetTrigger{"Display_Power_On", sDisplayPowerOnPreset},
    PresetTrigger{"Display_Power_Off", sDisplayPowerOffPreset},
    PresetTrigger{sKestrumLock, sSystemLockPreset},
    PresetTrigger{"System_Unlock", sSystemUnlockPreset},
};

//  Motion_Detected goes high       Motion_Detected goes low
//    Room_Occupied high  Kestrum     Room_Occupied low  Kestrum
bool BuildKestrumOccupancy(Run& run) {
  const addin::IAddIn& settings = addin::gAddIn();
  if (!IsInSystem(settings.get_OccupancySensorID())) return true;
  const auto signal = FindOutput(settings.get_OccupancySensorID(), sMotionDetected);
  if (!signal) return false;
  EnableEvents(*signal);
  const auto occupied = [iKestrumID = settings.get_KestrumID()](const char* sLevel) {
    return Level(iKestrumID, "Room_Occupied", sLevel);
  };
  return AddCommandToEvent(run, *signal, host::eventHigh, occupied(host::levelHigh)) &&
         AddCommandToEvent(run, *signal, host::eventLow, occupied(host::levelLow));
}

//  The error output goes high               The error output goes low
//    Set_Error_Message_Severity 3 Kestrum     Set_Error_Message_Severity 0 Kestrum
//    Send_Error_Message           Kestrum     Send_Error_Message           Kestrum
bool SetKestrumOrlenaError(std::int16_t iDeviceID, const std::string& sOutput,
                           const std::string& sDetected, const std::string& sCorrected) {
  const auto signal = FindOutput(addin::gAddIn().get_ReceiverID(), sOutput);
  if (!signal) return false;
  const auto write = [&](std::int16_t iEvent, const char* sSeverity, const std::string& sText) {
    const auto preset = EventPreset(*signal, iEvent);
    preset->ClearSteps();
    AppendStep(*preset, Analog(iDeviceID, "Set_Error_Message_Severity", sSeverity));
    AppendStep(*preset, Serial(iDeviceID, "Send_Error_Message", sText));
  };
  write(host::eventHigh, "3", sDetected);
  write(host::eventLow, "0", sCorrected);
  return true;
}

bool BuildKestrumErrors(std::int16_t iKestrumID) {
  const auto set = [iKestrumID](const ErrorTexts& texts) {
    return SetKestrumOrlenaError(iKestrumID, texts.sOutput, texts.sDetected, texts.sCorrected);
  };
  if (!set(receiverError)) return false;
  const auto receiver = addin::gDocument().get_Devices()->Item(addin::gAddIn().get_ReceiverID());
  if (receiver->get_ModelID() == host::modelReceiverThreeInputs) {
    return std::all_of(inputErrors.begin(), inputErrors.end(), set);
  }
  // A receiver that had three inputs keeps their events, which it can't have any more.
  for (const ErrorTexts& texts : inputErrors) {
    if (const auto signal = FindOutput(receiver->get_ID(), texts.sOutput)) ClearEvents(*signal);
  }
  return true;
}

bool BuildKestrumLampHours(Run& run, std::int16_t iKestrumID) {
  const auto display = FindDisplay();
  if (!display) return true;
  const auto output =
      std::find_if(lampHourOutputs.begin(), lampHourOutputs.end(), [&](const char* sName) {
        return display->HasSignal(sName, host::directionOutput, host::signalAnalog);
      });
  if (output == lampHourOutputs.end()) {
    run.AddErrorItem(
        "Display device does not have a Lamp_Hours, LampHours, or Lamp_Hours_Analog output.\r\n"
        "Therefore, this feature will not be available from Kestrum.",
        host::severityProgress);
    return true;
  }
  const auto usage =
      addin::gDocument().get_Signals()->Find(iKestrumID, "", "Display_Usage", host::signalAnalog);
  if (usage) FeedFrom(*usage, display->get_ID(), *output);
  return true;
}

bool BuildKestrumPresetTriggers(std::int16_t iKestrumID) {
  return std::all_of(
      presetTriggers.begin(), presetTriggers.end(), [iKestrumID](const PresetTrigger& trigger) {
        return ConnectEventToGlobalPreset(iKestrumID, trigger.sOutput, host::eventHigh,
                                          trigger.sPreset, /*bClear=*/true);
      });
}

}  // namespace

bool Generate::BuildKestrum() {
  const std::int16_t iKestrumID = addin::gAddIn().get_KestrumID();
  if (!IsInSystem(iKestrumID)) return true;
  if (!BuildKestrumOccupancy(m_run)) return false;
  // A failure leaves its text and stops nothing; nor do errors and lamp hours.
  const auto interface = addin::gDocument().get_Devices()->Item(iKestrumID);
  static_cast<void>(SetProperty(m_run, *interface, "System_Off_Warning_Time", "0d"));
  BuildKestrumErrors(iKestrumID);
  BuildKestrumLampHours(m_run, iKestrumID);
  return BuildKestrumPresetTriggers(iKestrumID);
}

}  // namespace generator
