#include "generator/Generate.h"

#include <algorithm>
#include <array>
#include <utility>

namespace generator {

bool Generate::Build() {
  ClearErrorItems();
  m_strFailedPart.clear();
  struct Part {
    bool (Generate::*Build)();
    const char* strPurpose;
  };
  // The display state adds the lockout module that the lockout sets up, and the contact closure
  // appends to a power preset that the power programming empties.
  static constexpr std::array order{
      Part{&Generate::BuildKestrum, "the monitoring interface"},
      Part{&Generate::BuildMotionSensor, "the motion detector"},
      Part{&Generate::BuildDisplayDeviceSwitching, "the selection of the display's input"},
      Part{&Generate::BuildDisplayStateProgramming, "the display's warming up and cooling down"},
      Part{&Generate::BuildPowerProgramming, "power on and power off"},
      Part{&Generate::BuildPowerOnOffLockout, "the power lockout"},
      Part{&Generate::BuildSystemLockPresets, "locking and unlocking the room"},
      Part{&Generate::BuildKestrumInputs, "the digital inputs of the monitoring interface"},
      Part{&Generate::BuildOnOffContactClosureControl, "the contact closure"},
      Part{&Generate::BuildAudioControl, "the audio"},
  };
  const auto failed = std::find_if_not(order.begin(), order.end(),
                                       [this](const Part& part) { return (this->*part.Build)(); });
  if (failed == order.end()) return true;
  m_strFailedPart = failed->strPurpose;
  return false;
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
