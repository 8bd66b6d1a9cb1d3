#include "generator/Generate.h"

#include <algorithm>
#include <array>
#include <utility>

namespace generator {

bool Generate::Build() {
  ClearErrorItems();
  using SubBuilder = bool (Generate::*)();
  static constexpr std::array<SubBuilder, 1> order{
      &Generate::BuildPowerProgramming,
  };
  return std::all_of(order.begin(), order.end(),
                     [this](SubBuilder subBuilder) { return (this->*subBuilder)(); });
}

void Generate::ClearErrorItems() { m_colErrorItems = {}; }

void Generate::AddErrorItem(const std::string& sMessage, std::int16_t iSeverity) {
  auto item = std::make_shared<host::clsErrorItem>();
  item->put_Message(sMessage);
  item->put_Severity(iSeverity);
  m_colErrorItems.push_back(std::move(item));
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

}  // namespace generator
