#pragma once

#include <cstdint>

/// The numbers that stand in a document, in the device library and in the host's operations. They
/// are plain enumerations, so that they pass as the 16-bit and 32-bit integers of the interfaces.
namespace host {

/// The slot that takes every device and interface below the receiver.
inline constexpr std::int16_t slotReceiverPorts = 15;

enum enumStepKind : std::int16_t {
  stepDigital = 1,  // command; the value is empty, a hold time in hundredths, levelHigh or levelLow
  stepAnalog = 5,   // command; the value is a constant such as "2d"
  stepSerial = 6,   // command; the value is the text to send
  stepCallPreset = 7,   // the target is the preset's id
  stepConditional = 9,  // has conditions and a branch
  stepDelay = 11,       // the value is the time in hundredths
};

enum enumTargetType : std::int16_t {
  targetDevice = 0,
  targetTouchpanel = 1,
  targetPreset = 3,
  targetNone = 4,  // a conditional step has no target
};

/// The two levels of a digital step's value.
inline constexpr const char* levelHigh = "-1";
inline constexpr const char* levelLow = "-2";

inline constexpr std::int16_t valueFormatInteger = 0;

enum enumSignalEvent : std::int16_t {
  eventHigh = 0,  // the contact closes, motion is detected, the display starts to warm up
  eventLow = 1,   // the contact opens, no motion, the warm-up has ended
};

/// The events that SignalOptions::EnableEvents turns on; the only value in use.
inline constexpr std::int16_t eventsAll = 7;

enum enumSourceType : std::int16_t {
  sourceEvents = 0,  // the signal is driven by the presets of its events
  sourceSignal = 4,  // the signal is fed directly from a signal of a device
};

enum enumSignalType : std::int16_t {
  signalDigital = 1,
  signalAnalog = 2,
  signalSerial = 4,
};

enum enumDirection : std::int16_t {
  directionInput = 1,   // a command of the device
  directionOutput = 2,  // what the device reports
};

enum enumConditionType : std::int32_t {
  conditionNamedState = 1,    // "Is Open" or "Is Closed" of a device input
  conditionDigitalValue = 5,  // the value of a digital signal
};

/// The command of a driver that turns the power on and off in turn.
inline constexpr const char* commandPowerToggle = "POWER";

inline constexpr std::int32_t compareEqual = 0;

inline constexpr const char* stateIsOpen = "Is Open";      // pairs with the value 0
inline constexpr const char* stateIsClosed = "Is Closed";  // pairs with the value 1

enum enumPowerControl : std::int16_t {
  powerNone = 0,
  powerSensing = 1,
  powerDiscrete = 2,
};

enum enumCommandType : std::int16_t {
  commandMomentary = 1,
  commandPulse = 2,  // is held for a time that the program gives
  commandHeld = 3,   // stays until another command
};

/// The id that drivers map to a command.
enum enumOLStandardCommands : std::int16_t {
  scUnknown = 0,
  scDown = 43,
  scUp = 42,
  scOff = 165,
  scOn = 166,
  scRGB1 = 187,
  scVideo1 = 239,
};

/// LibraryDevice::get_Kind of an entry that can be used in its slot.
inline constexpr std::int16_t kindUsable = 1;

/// Models and control entries of the library that are known by number.
enum enumModel : std::int16_t {
  modelFromControlEntry = 0,  // the library picks the model by the control entry
  modelFenlet = 51,
  modelReceiverThreeInputs = 841,
  modelReceiverOneInput = 842,
  modelPowerSensor = 844,
  modelPowerRelay = 2528,
  modelDigitalInput = 2744,
  modelMotionDetector = 2910,
  modelKestrum = 2998,
};

enum enumControlEntry : std::int16_t {
  entryPowerRelay = 1980,
  entryDigitalInput = 2307,
  entryMotionDetector = 2525,
  entryKestrum = 2659,
};

/// The further part that a power sensor needs in the receiver's bill entry, and its key there.
inline constexpr std::int32_t partPowerSensor = 366;
inline constexpr const char* partKeyPowerSensor = "366";

/// What ShowAddReplaceDeviceDialog answers; any other value is the id of the chosen device.
enum enumDeviceDialogResult : std::int16_t {
  deviceDialogNone = 0,
  deviceDialogUnchanged = -1,
};

/// Arguments of the upload that only the host gives a meaning.
inline constexpr std::int16_t transferAll = 0;
inline constexpr std::int16_t transferProgram = 2;
inline constexpr std::int16_t queryResponseYes = 6;
inline constexpr std::int16_t queryResponseRetry = 4;

enum enumErrorSeverity : std::int16_t {
  severityProgress = 1,  // information; in a panel build the progress
  severityWarning = 2,
};

/// Places in the host's two lists of pictures, counted from 1. The large list but for
/// pictureSmall...
enum enumPicture : std::int16_t {
  pictureFenlet = 9,
  pictureDisplay = 12,
  pictureScreen = 23,
  pictureVolumeKnob = 26,
  pictureLockout = 30,
  pictureLift = 44,
  pictureContact = 137,
  pictureInformation = 166,
  pictureMicrophone = 171,
  pictureKestrum = 174,
  pictureSmallCommand = 31,
  pictureSmallAddIn = 165,
  pictureSmallInformation = 166,
};

enum enumAddinHelpTopicID : std::int16_t {
  helpOfActiveForm = 0,
  helpStartTab = 10,
  helpNameAndLocationTab = 11,
  helpFinishTab = 14,
  helpDisplayDeviceTab = 62,
  helpDisplayOptionsTab = 63,
  helpPowerControlTab = 69,
  helpOriginationPointTab = 70,
  helpRoomOptions = 71,
  helpTouchpanelCreation = 117,
  helpDisplayDeviceRequirements = 120,
  helpAudioControlTab = 121,
  helpVideoTestPattern = 467,
  helpKestrumSetup = 468,
  helpPowerOnOffLockout = 504,
};

/// Program ids of the classes that the add-in has the host create, through forms::createObject.
inline constexpr const char* progIDStep = "vmDocument.Step";
inline constexpr const char* progIDDevice = "vmDocument.Device";

/// Property pages of ShowControlledDeviceProperties.
inline constexpr const char* progIDPageBasic = "vmCorvane.TabPropsDeviceBasic";
inline constexpr const char* progIDPageIOAssignment = "vmCorvane.TabPropsIOAssignment";
inline constexpr const char* progIDPageProperties = "vmCorvane.TabPropsDeviceProps";

/// The page that ShowRealTimeDialog shows for a receiver.
inline constexpr const char* progIDRealTimeAudio = "PlugInOrlena.rtAudio";

/// Names of the reports, as ShowReportsDialog takes them.
inline constexpr const char* reportsAll = "Bill of Materials,Connection Sheet";

}  // namespace host
