#include "generator/Run.h"

#include <utility>

#include "addin/modGlobals.h"
#include "host/Numbers.h"

namespace generator {
namespace {

constexpr std::int16_t iFirstSensor = 1;

}  // namespace

bool Run::Fail(const std::string& sText) {
  m_strLastError = sText;
  return false;
}

bool Run::CannotFindSequence(const std::string& sPreset) {
  return Fail("Cannot find sequence: " + sPreset);
}

bool Run::CannotFindPreset(const std::string& sPreset) {
  return Fail("Cannot find preset: " + sPreset);
}

bool Run::CannotFindCommand(const std::string& sCommand, const host::Device& device) {
  return Fail("Cannot find command " + sCommand + " on device " + device.get_Name());
}

bool Run::FailedToFind(const std::string& sProperty) { return Fail("Failed to find " + sProperty); }

bool Run::FailedToSetProperty(const std::string& sProperty, const std::string& sValue) {
  return Fail("Failed to set property value " + sProperty + " to " + sValue);
}

void Run::ClearErrorItems() { m_colErrorItems = std::make_shared<addin::ErrorItems>(); }

void Run::AddErrorItem(const std::string& sMessage, std::int16_t iSeverity) {
  auto item = std::make_shared<host::clsErrorItem>();
  item->put_Message(sMessage);
  item->put_Severity(iSeverity);
  m_colErrorItems->push_back(std::move(item));
}

std::int16_t Run::GetPowerSensorHandle() {
  if (m_iSensorHandle == 0) {
    m_iSensorHandle =
        addin::gOwnerForm().GetPowerSensorDeviceHandle(iFirstSensor, {host::modelPowerSensor});
  }
  return m_iSensorHandle;
}

}  // namespace generator
