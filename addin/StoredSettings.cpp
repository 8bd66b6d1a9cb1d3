#include "addin/StoredSettings.h"

#include <tuple>

#include "common/AttributeText.h"
#include "forms/Numbers.h"

namespace addin {
namespace {

/// What gives a setting its default.
enum class Given {
  always,
  byReset,         // a system without a block leaves it
  byMissingBlock,  // a reset leaves it
};

template <typename Value>
struct Row {
  const char* strName;
  Value StoredSettings::*member;
  Value valueByDefault;
  Given eGiven = Given::always;
};

template <typename Value, typename Default, typename... Rest>
Row(const char*, Value StoredSettings::*, Default, Rest...) -> Row<Value>;

/// All there is to know of each row, in the order of the block.
const auto& Rows() {
  using S = StoredSettings;
  using enum Given;
  static const std::tuple rows{
      Row{"Volume Knob Control", &S::strVolumeKnobControl, "0d", byMissingBlock},
      Row{"Mic Mode Control", &S::strMicModeControl, "0d", byMissingBlock},
      Row{"Mute on Digital Input 3 contact", &S::bMuteOnDigInp3, false, byReset},
      Row{"Always use the 3 OL receiver", &S::bUse3OLReceiver, false, byReset},
      Row{"Second Power Off command Send", &S::bSecondPowerOff, false, byReset},
      Row{"Second Power Off command Name", &S::sSecondPowerOff, ""},
      Row{"Second Power Off command Time", &S::iSecondPowerOff, 0},
      Row{"Power Relay Power On Delay", &S::iPowerRelayOnDelay, 0},
      Row{"Power Relay Power Off Delay", &S::iPowerRelayOffDelay, 120},
      Row{"Power On Lockout Time", &S::iPowerOnLockoutTime, 30},
      Row{"Power Off Lockout Time", &S::iPowerOffLockoutTime, 120},
      Row{"Contact Closure Option", &S::iPowerContactClosureOption, contactUnused},
      Row{"Power On Pulse Time 0", &S::lScreenOnPulse, 0},
      Row{"Power On Pulse Time 1", &S::lLiftOnPulse, 0},
      Row{"Power Off Pulse Time 0", &S::lScreenOffPulse, 0},
      Row{"Power Off Pulse Time 1", &S::lLiftOffPulse, 0},
      Row{"Fenlet Password", &S::strFenletPassword, "mossgate"},
      Row{"Motion Sensor Timeout", &S::iMotionSensorTimeout, 0, byMissingBlock},
  };
  return rows;
}

template <typename Visit>
void ForEachRow(Visit visit) {
  std::apply([&visit](const auto&... row) { (visit(row), ...); }, Rows());
}

/// Gives the defaults, but to the settings that something else gives them to.
void GiveDefaults(StoredSettings& settings, Given eNotGiven) {
  ForEachRow([&](const auto& row) {
    if (row.eGiven != eNotGiven) settings.*row.member = row.valueByDefault;
  });
}

void Read(const std::string& strBlock, const char* strName, std::string& strValue) {
  strValue = common::GetAttributeValue(strBlock, strName);
}

void Read(const std::string& strBlock, const char* strName, bool& bValue) {
  bValue = common::GetAttributeValueBool(strBlock, strName);
}

void Read(const std::string& strBlock, const char* strName, std::int16_t& iValue) {
  iValue = common::GetAttributeValueInt(strBlock, strName);
}

void Read(const std::string& strBlock, const char* strName, std::int32_t& lValue) {
  lValue = common::GetAttributeValueLong(strBlock, strName);
}

std::string Written(const std::string& strValue) { return strValue; }
std::string Written(bool bValue) { return bValue ? "True" : "False"; }
std::string Written(std::int32_t lValue) { return forms::decimal(lValue); }

}  // namespace

void ResetStoredSettings(StoredSettings& settings) {
  GiveDefaults(settings, Given::byMissingBlock);
}

void ReadSettingsBlock(const std::string& strBlock, StoredSettings& settings) {
  if (strBlock.empty()) return GiveDefaults(settings, Given::byReset);
  ForEachRow([&](const auto& row) { Read(strBlock, row.strName, settings.*row.member); });
  settings.iPowerOnLockoutTime = forms::absolute(settings.iPowerOnLockoutTime);
  settings.iPowerOffLockoutTime = forms::absolute(settings.iPowerOffLockoutTime);
}

std::string WriteSettingsBlock(const StoredSettings& settings) {
  std::string strBlock;
  ForEachRow([&](const auto& row) {
    common::SetAttributeValue(strBlock, row.strName, Written(settings.*row.member));
  });
  return strBlock;
}

}  // namespace addin
