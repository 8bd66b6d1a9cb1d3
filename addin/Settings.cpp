#include <array>
#include <cmath>

#include "addin/IAddIn.h"
#include "addin/modGlobals.h"
#include "forms/Numbers.h"
#include "forms/Text.h"

namespace addin {
namespace {

std::string FlagConstant(bool bFlag) { return bFlag ? "1d" : "0d"; }

// By the device, the screen at 0.
constexpr std::array onPulses{&StoredSettings::lScreenOnPulse, &StoredSettings::lLiftOnPulse};
constexpr std::array offPulses{&StoredSettings::lScreenOffPulse, &StoredSettings::lLiftOffPulse};

std::int32_t StoredSettings::*PulseOf(const std::array<std::int32_t StoredSettings::*, 2>& pulses,
                                      std::int16_t intOption) {
  return pulses.at(static_cast<std::size_t>(intOption));
}

float ToSeconds(std::int32_t lHundredths) { return static_cast<float>(lHundredths) / 100.0F; }

std::int32_t ToHundredths(float sngSeconds) {
  return gOwnerForm().GetHSeconds(forms::decimal(std::abs(sngSeconds)) + "s", 0);
}

}  // namespace

void IAddIn::put_VolumeKnobControl(bool bMaster) {
  m_settings.strVolumeKnobControl = FlagConstant(bMaster);
}

void IAddIn::put_MicModeControl(bool bAlwaysActive) {
  m_settings.strMicModeControl = FlagConstant(bAlwaysActive);
}

void IAddIn::put_PowerOnLockoutTime(std::int16_t iSeconds) {
  m_settings.iPowerOnLockoutTime = forms::absolute(iSeconds);
}

void IAddIn::put_PowerOffLockoutTime(std::int16_t iSeconds) {
  m_settings.iPowerOffLockoutTime = forms::absolute(iSeconds);
}

float IAddIn::get_PowerOnPulseTime(std::int16_t intOption) const {
  return ToSeconds(m_settings.*PulseOf(onPulses, intOption));
}

void IAddIn::put_PowerOnPulseTime(std::int16_t intOption, float sngSeconds) {
  m_settings.*PulseOf(onPulses, intOption) = ToHundredths(sngSeconds);
}

float IAddIn::get_PowerOffPulseTime(std::int16_t intOption) const {
  return ToSeconds(m_settings.*PulseOf(offPulses, intOption));
}

void IAddIn::put_PowerOffPulseTime(std::int16_t intOption, float sngSeconds) {
  m_settings.*PulseOf(offPulses, intOption) = ToHundredths(sngSeconds);
}

void IAddIn::put_FenletPassword(const std::string& strPassword) {
  m_settings.strFenletPassword = forms::trimmed(strPassword);
}

std::int16_t IAddIn::get_OriginationPointID(std::int16_t intIndex) const {
  return m_cast.iOriginationPoint.at(static_cast<std::size_t>(intIndex - 1));
}

}  // namespace addin
