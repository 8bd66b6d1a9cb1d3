#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "forms/Object.h"
#include "host/StandardCommand.h"

namespace host {

class Device;
class LibraryModule;

/// A property of a device or module. Values are texts, a constant in the document's syntax where
/// the device wants one
/// ("0d").
class DeviceProperty {
 public:
  virtual ~DeviceProperty() = default;
  virtual std::string get_Name() const = 0;
  virtual std::string get_Value() const = 0;
  /// False: the property does not take the value and keeps its own.
  [[nodiscard]] virtual bool SetValue(const std::string& strValue) = 0;
};

/// A device's properties by name, in the driver's order.
class PropertyList {
 public:
  virtual ~PropertyList() = default;
  /// Raises Error errUnknownKey for a name that the device does not have.
  virtual std::shared_ptr<DeviceProperty> Item(const std::string& strName) const = 0;
  virtual std::vector<std::shared_ptr<DeviceProperty>> Items() const = 0;
};

/// A command of a device's driver.
class DeviceCommand {
 public:
  virtual ~DeviceCommand() = default;
  virtual std::string get_Name() const = 0;
  virtual std::int16_t get_CommandType() const = 0;  // enumCommandType
};

/// The commands of a driver, in its order. Names are compared exactly.
class CommandList {
 public:
  virtual ~CommandList() = default;
  virtual bool Exists(const std::string& strName) const = 0;
  virtual std::vector<std::shared_ptr<DeviceCommand>> Items() const = 0;
};

/// A place of a module that takes a command of a device. DeviceID 0 and an empty command: unset.
class ModuleCommandSlot {
 public:
  virtual ~ModuleCommandSlot() = default;
  virtual std::string get_Name() const = 0;
  virtual std::int16_t get_DeviceID() const = 0;
  virtual void put_DeviceID(std::int16_t iDeviceID) = 0;
  virtual std::string get_CommandName() const = 0;
  virtual void put_CommandName(const std::string& strCommandName) = 0;
};

/// A device of the document, or a module that hangs below one. A reference stays usable while the
/// document lives; using one whose device was removed raises Error errDocumentClosed, but for
/// get_ID, which then answers 0.
//
/// A module is made with forms::createObject<Device>(progIDDevice), filled from its library entry,
/// and handed to AddModules, which takes a copy.
class Device : public forms::Object {
 public:
  virtual std::int16_t get_ID() const = 0;  // 0: no device
  virtual std::string get_Name() const = 0;
  virtual void put_Name(const std::string& strName) = 0;
  virtual std::string get_ShortName() const = 0;  // of a module, else empty
  virtual void put_ShortName(const std::string& strShortName) = 0;
  virtual std::string get_Label() const = 0;
  virtual void put_Label(const std::string& strLabel) = 0;
  virtual std::string get_Description() const = 0;
  virtual void put_Description(const std::string& strDescription) = 0;
  virtual std::string get_Maker() const = 0;
  virtual void put_Maker(const std::string& strMaker) = 0;

  virtual std::int16_t get_ModelID() const = 0;
  virtual std::int16_t get_ControlEntryID() const = 0;
  virtual std::int16_t get_LibraryID() const = 0;
  virtual void put_LibraryID(std::int16_t iLibraryID) = 0;
  virtual std::int16_t get_ParentID() const = 0;  // 0: none, as for the control system

  /// The number under which the receiver addresses the device; 0: it is not wired to the receiver.
  virtual std::int16_t get_DeviceHandle() const = 0;
  virtual std::string get_IOAssignment() const = 0;  // for reading, such as "Relay 1"; may be empty

  virtual bool get_ShowInTree() const = 0;
  virtual void put_ShowInTree(bool bShow) = 0;
  virtual std::int16_t get_PowerControlType() const = 0;  // enumPowerControl
  virtual void put_PowerControlType(std::int16_t iType) = 0;
  virtual bool get_SecondOffCapable() const = 0;
  virtual std::string get_RealTimeProgID() const = 0;
  virtual void put_RealTimeProgID(const std::string& strProgID) = 0;
  virtual std::int16_t get_SensorHandle() const = 0;
  virtual void put_SensorHandle(std::int16_t iHandle) = 0;
  virtual std::string get_SensorFormat() const = 0;
  virtual void put_SensorFormat(const std::string& strFormat) = 0;

  virtual std::vector<std::shared_ptr<Device>> get_Modules() const = 0;
  /// Of a module: its slots; of a device: empty.
  virtual std::vector<std::shared_ptr<ModuleCommandSlot>> get_CommandSlots() const = 0;

  /// Nothing when absent.
  virtual std::shared_ptr<DeviceProperty> GetProperty(const std::string& strName) const = 0;
  virtual std::shared_ptr<PropertyList> get_Properties() const = 0;
  /// Whether there are properties to show; bAdvanced counts those too that are kept off the
  /// properties page.
  virtual bool HasProperties(bool bAdvanced) const = 0;

  virtual bool HasSignal(const std::string& strSignalName, std::int16_t iDirection,
                         std::int16_t iSignalType) const = 0;
  virtual std::shared_ptr<CommandList> GetCommandList(std::int16_t iDirection,
                                                      std::int16_t iSignalType) const = 0;
  /// Nothing when absent.
  virtual std::shared_ptr<DeviceCommand> FindCommand(const std::string& strName,
                                                     std::int16_t iDirection,
                                                     std::int16_t iSignalType) const = 0;

  /// The command for a standard command id in decimal text: from the standard command map, where an
  /// entry with an empty command answers empty, else the driver's default; empty when neither has
  /// one.
  virtual std::string GetCommandName(const std::string& strStandardID) const = 0;
  /// Writes the entry of the map, adding one if needed. bChanged tells whether GetCommandName
  /// answers another text now.
  virtual void SetCommandName(const std::string& strStandardID, const std::string& strCommandName,
                              bool& bChanged) = 0;
  /// The driver's own, whatever the map holds; empty when it has none.
  virtual std::string GetDefaultCommandName(std::int16_t iStandardID) const = 0;
  virtual std::vector<std::shared_ptr<StandardCommand>> get_StandardCommands() const = 0;
  /// Replaces an entry of the same standard id. strWarning names a command that is empty or that
  /// the driver lacks; the entry is made all the same.
  virtual void AddStandardCommand(const std::shared_ptr<StandardCommand>& oCommand,
                                  std::string& strWarning) = 0;

  /// Fills a module that is not in a document yet from its library entry; iParentID is the device
  /// it will hang below.
  virtual void CreateFromLibrary(const std::shared_ptr<LibraryModule>& oEntry,
                                 std::int16_t iParentID) = 0;
};

}  // namespace host
