#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace host {

/// A message in an error list.
class clsErrorItem {
 public:
  virtual ~clsErrorItem() = default;

  std::int16_t get_Severity() const { return m_iSeverity; }  // enumErrorSeverity
  void put_Severity(std::int16_t iSeverity) { m_iSeverity = iSeverity; }

  const std::string& get_Message() const { return m_strMessage; }
  void put_Message(std::string strMessage) { m_strMessage = std::move(strMessage); }

  /// Whether Activate leads to the place that the message speaks of.
  bool get_CanActivate() const { return m_bCanActivate; }
  void put_CanActivate(bool bCanActivate) { m_bCanActivate = bCanActivate; }

  /// Shows the place that the message speaks of. An item without one, or with CanActivate False,
  /// does nothing.
  virtual void Activate(const std::string& strText, const std::shared_ptr<void>& oObject) {
    static_cast<void>(strText);
    static_cast<void>(oObject);
  }

 private:
  std::int16_t m_iSeverity = 0;
  std::string m_strMessage;
  bool m_bCanActivate = true;
};

}  // namespace host
