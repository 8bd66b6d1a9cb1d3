#pragma once

#include <cstdint>
#include <string>

#include "addin/Enumerations.h"

/// The answers that are stored with a system, and the block of text that holds them there: a row
/// for each, in an order that never changes.
namespace addin {

/// Times are seconds where nothing else is said.
struct StoredSettings {
  std::string strVolumeKnobControl{};  // "1d", "0d", or empty while never set
  std::string strMicModeControl{};     // the same
  bool bMuteOnDigInp3 = false;
  bool bUse3OLReceiver = false;
  bool bSecondPowerOff = false;
  std::string sSecondPowerOff{};
  std::int16_t iSecondPowerOff = 0;
  std::int16_t iPowerRelayOnDelay = 0;
  std::int16_t iPowerRelayOffDelay = 0;
  std::int16_t iPowerOnLockoutTime = 0;  // never negative, as the next
  std::int16_t iPowerOffLockoutTime = 0;
  std::int16_t iPowerContactClosureOption = contactUnused;
  std::int32_t lScreenOnPulse = 0;  // hundredths of a second, as the next three
  std::int32_t lLiftOnPulse = 0;
  std::int32_t lScreenOffPulse = 0;
  std::int32_t lLiftOffPulse = 0;
  std::string strFenletPassword{};  // empty: none
  std::int16_t iMotionSensorTimeout = 0;
};

/// The settings of a new room, but for the sensor's timeout and the two audio choices, which keep
/// what they hold.
void ResetStoredSettings(StoredSettings& settings);

/// A row that is missing reads as nothing: empty, 0 or False. An empty block, that of a system
/// without any, gives the settings of a new room, but for the three ticks, which keep what they
/// hold. A number that its type can't hold is told in a message.
void ReadSettingsBlock(const std::string& strBlock, StoredSettings& settings);

std::string WriteSettingsBlock(const StoredSettings& settings);

}  // namespace addin
