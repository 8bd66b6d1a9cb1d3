#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace host {

/// One test of a conditional step.
class StepCondition {
 public:
  std::int16_t get_DeviceID() const { return m_iDeviceID; }
  void put_DeviceID(std::int16_t iDeviceID) { m_iDeviceID = iDeviceID; }

  std::int32_t get_ConditionType() const { return m_lConditionType; }  // enumConditionType
  void put_ConditionType(std::int32_t lConditionType) { m_lConditionType = lConditionType; }

  const std::string& get_SignalName() const { return m_strSignalName; }
  void put_SignalName(const std::string& strSignalName) { m_strSignalName = strSignalName; }

  /// Of conditionNamedState, else empty.
  const std::string& get_StateName() const { return m_strStateName; }
  void put_StateName(const std::string& strStateName) { m_strStateName = strStateName; }

  std::int32_t get_Compare() const { return m_lCompare; }
  void put_Compare(std::int32_t lCompare) { m_lCompare = lCompare; }

  std::int16_t get_Value() const { return m_iValue; }  // 1 or 0
  void put_Value(std::int16_t iValue) { m_iValue = iValue; }

  bool operator==(const StepCondition&) const = default;

 private:
  std::int16_t m_iDeviceID = 0;
  std::int32_t m_lConditionType = 0;
  std::string m_strSignalName;
  std::string m_strStateName;
  std::int32_t m_lCompare = 0;
  std::int16_t m_iValue = 0;
};

/// The tests of a conditional step. Programs use one test; a branch runs when all hold.
class StepConditionGroup {
 public:
  void Add(const std::shared_ptr<StepCondition>& oCondition) { m_colItems.push_back(oCondition); }
  const std::vector<std::shared_ptr<StepCondition>>& Items() const { return m_colItems; }

 private:
  std::vector<std::shared_ptr<StepCondition>> m_colItems;
};

}  // namespace host
