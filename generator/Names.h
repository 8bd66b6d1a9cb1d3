#pragma once

#include <cstdint>
#include <string>

/// The names by which the template, the drivers and the modules of the library know what the
/// generator writes to. Power names go by one of addin::enumPowerDiscrete, of which whatever is not
/// pdOff counts as pdOn; source names go by scRGB1 or scVideo1 and are empty for any other command.
namespace generator {

// What more than one sub-builder names.
inline constexpr const char* sSystemPowerOnPreset = "System Power On";
inline constexpr const char* sSystemPowerOffPreset = "System Power Off";
inline constexpr const char* sDisplayPowerOnPreset = "Display Power On";
inline constexpr const char* sDisplayPowerOffPreset = "Display Power Off";
inline constexpr const char* sSystemLockPreset = "System Lock";
inline constexpr const char* sSystemUnlockPreset = "System Unlock";
inline constexpr const char* sContact = "dig_input_1";  // the output of a digital input
inline constexpr const char* sMotionDetected = "Motion_Detected";
inline constexpr const char* sPoweredOff = "Powered_Off";
inline constexpr const char* sLockCommand = "Lock";
inline constexpr const char* sUnlockCommand = "Unlock";
inline constexpr const char* sKestrumLock = "System_Lock";  // what the help desk asks for
inline constexpr const char* sSensingModule = "PWRSENSE";
inline constexpr const char* sLockoutModule = "PWRTIMEOUT";

/// A preset of the template, and the comment that it gets while it has none.
struct NamedPreset {
  std::string sName;
  std::string sComment;
};

NamedPreset GetSystemPowerPreset(std::int16_t ePowerOnOrOff);
NamedPreset GetDisplayPowerPreset(std::int16_t ePowerOnOrOff);
std::string GetModulePowerSlot(std::int16_t ePowerOnOrOff);
std::string GetKestrumPowerSignal(std::int16_t ePowerOnOrOff);
/// Empty for pdOn: the receiver is not turned on by a command.
std::string GetReceiverPowerCommand(std::int16_t ePowerOnOrOff);
/// The warning for a display whose driver lacks the command.
std::string GetMissingPowerCommandWarning(std::int16_t ePowerOnOrOff);

/// The receiver's output that tells that the source is selected.
std::string GetSourceFeedbackSignal(std::int16_t iStandardCommand);
std::string GetSourceLogText(std::int16_t iStandardCommand);

}  // namespace generator
