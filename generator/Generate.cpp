#include "generator/Generate.h"

#include <algorithm>
#include <array>
#include <utility>

namespace generator {

bool Generate::Build() {
  ClearErrorItems();
  using SubBuilder = bool (Generate::*)();
  // The display state adds the lockout module that the lockout sets up, and the contact closure
  // appends to a power preset that the power programming empties.
  static constexpr std::array order{
      SubBuilder{&Generate::BuildKestrum},
      SubBuilder{&Generate::BuildMotionSensor},
      SubBuilder{&Generate::BuildDisplayDeviceSwitching},
      SubBuilder{&Generate::BuildDisplayStateProgramming},
      SubBuilder{&Generate::BuildPowerProgramming},
      SubBuilder{&Generate::BuildPowerOnOffLockout},
      SubBuilder{&Generate::BuildSystemLockPresets},
      SubBuilder{&Generate::BuildKestrumInputs},
      SubBuilder{&Generate::BuildOnOffContactClosureControl},
      SubBuilder{&Generate::BuildAudioControl},
  };
  return std::all_of(order.begin(), order.end(),
                     [this](SubBuilder subBuilder) { return (this->*subBuilder)(); });
}

void Generate::ClearErrorItems() { m_colErrorItems = std::make_shared<addin::ErrorItems>(); }

void Generate::AddErrorItem(const std::string& sMessage, std::int16_t iSeverity) {
  auto item = std::make_shared<host::clsErrorItem>();
  item->put_Message(sMessage);
  item->put_Severity(iSeverity);
  m_colErrorItems->push_back(std::move(item));
}

bool Generate::Fail(const std::string& sText) {
  m_strLastError = sText;
  return false;
}

bool Generate::CannotFindSequence(const std::string& sPreset) {
  return Fail("Cannot find sequence: " + sPreset);
}

bool Generate::CannotFindPreset(const std::string& sPreset) {
  return Fail("Cannot find preset: " + sPreset);
}

bool Generate::CannotFindCommand(const std::string& sCommand, const host::Device& device) {
  return Fail("Cannot find command " + sCommand + " on device " + device.get_Name());
}

bool Generate::FailedToFind(const std::string& sProperty) {
  return Fail("Failed to find " + sProperty);
}

bool Generate::FailedToSetProperty(const std::string& sProperty, const std::string& sValue) {
  return Fail("Failed to set property value " + sProperty + " to " + sValue);
}

bool Generate::SetProperty(const host::Device& device, const std::string& sProperty,
                           const std::string& sValue) {
  const auto property = device.GetProperty(sProperty);
  if (!property) return FailedToFind(sProperty);
  return property->SetValue(sValue) || FailedToSetProperty(sProperty, sValue);
}

}  // namespace generator
