#pragma once

#include <cstdint>
#include <string>

namespace host {

/// An entry of a device's standard command map: which of the driver's commands stands for a
/// standard command. An entry taken from Device::get_StandardCommands is the document's own: what
/// is put into it is in the document.
class StandardCommand {
 public:
  std::int16_t get_DeviceID() const { return m_iDeviceID; }
  void put_DeviceID(std::int16_t iDeviceID) { m_iDeviceID = iDeviceID; }

  std::int16_t get_StandardID() const { return m_iStandardID; }
  void put_StandardID(std::int16_t iStandardID) { m_iStandardID = iStandardID; }

  /// Empty: no command is assigned.
  const std::string& get_CommandName() const { return m_strCommandName; }
  void put_CommandName(const std::string& strCommandName) { m_strCommandName = strCommandName; }

  std::int16_t get_LibraryID() const { return m_iLibraryID; }
  void put_LibraryID(std::int16_t iLibraryID) { m_iLibraryID = iLibraryID; }

  /// The standard id as decimal text.
  const std::string& get_Name() const { return m_strName; }
  void put_Name(const std::string& strName) { m_strName = strName; }

 private:
  std::int16_t m_iDeviceID = 0;
  std::int16_t m_iStandardID = 0;
  std::string m_strCommandName;
  std::int16_t m_iLibraryID = 0;
  std::string m_strName;
};

}  // namespace host
