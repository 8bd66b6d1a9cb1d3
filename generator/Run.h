#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "addin/ProgramBuilder.h"
#include "host/Device.h"

namespace generator {

/// What a run has to tell besides the program that it writes: the text of its last failure, which
/// stays, and its warnings. A failure without a text leaves the one before it.
class Run {
 public:
  /// Each of these answers False, so that what failed can return it.
  bool Fail(const std::string& sText);
  bool CannotFindSequence(const std::string& sPreset);
  bool CannotFindPreset(const std::string& sPreset);
  bool CannotFindCommand(const std::string& sCommand, const host::Device& device);
  bool FailedToFind(const std::string& sProperty);
  bool FailedToSetProperty(const std::string& sProperty, const std::string& sValue);
  const std::string& get_LastError() const { return m_strLastError; }

  /// Begins another list of warnings; one that was fetched stays as it was.
  void ClearErrorItems();
  void AddErrorItem(const std::string& sMessage, std::int16_t iSeverity);
  std::shared_ptr<const addin::ErrorItems> get_ErrorItems() const { return m_colErrorItems; }

  /// The host's handle of the power sensor, which is asked for once.
  std::int16_t GetPowerSensorHandle();

 private:
  std::string m_strLastError;
  std::shared_ptr<addin::ErrorItems> m_colErrorItems = std::make_shared<addin::ErrorItems>();
  std::int16_t m_iSensorHandle = 0;  // 0 until it is first asked for
};

}  // namespace generator
