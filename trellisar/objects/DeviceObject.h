#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/Device.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// A device or module of a document; without a document a blank device, or a module that is being
/// filled.
class DeviceObject : public host::Device {
 public:
  DeviceObject(DocumentPtr document, DevicePtr data);
  /// A module that is being filled.
  DeviceObject();

  /// Raises host::Error errDocumentClosed when the device or its document is gone.
  DeviceData& data() const;
  /// Nothing when the device is gone.
  static std::shared_ptr<host::Device> orNothing(const DocumentPtr& document,
                                                 const DevicePtr& device);

  std::int16_t get_ID() const override;
  std::string get_Name() const override { return data().name; }
  void put_Name(const std::string& strName) override;
  std::string get_ShortName() const override { return data().shortName; }
  void put_ShortName(const std::string& strShortName) override;
  std::string get_Label() const override { return data().label; }
  void put_Label(const std::string& strLabel) override;
  std::string get_Description() const override { return data().description; }
  void put_Description(const std::string& strDescription) override;
  std::string get_Maker() const override { return data().maker; }
  void put_Maker(const std::string& strMaker) override;

  std::int16_t get_ModelID() const override { return data().definition->modelId; }
  std::int16_t get_ControlEntryID() const override { return data().definition->controlEntry; }
  std::int16_t get_LibraryID() const override { return data().libraryId; }
  void put_LibraryID(std::int16_t iLibraryID) override { data().libraryId = iLibraryID; }
  std::int16_t get_ParentID() const override { return data().parent; }
  std::int16_t get_DeviceHandle() const override { return data().handle; }
  std::string get_IOAssignment() const override;

  bool get_ShowInTree() const override { return data().shown; }
  void put_ShowInTree(bool bShow) override { data().shown = bShow; }
  std::int16_t get_PowerControlType() const override { return data().powerControl; }
  void put_PowerControlType(std::int16_t iType) override;
  bool get_SecondOffCapable() const override { return data().definition->secondOff; }
  std::string get_RealTimeProgID() const override { return data().realTimePage; }
  void put_RealTimeProgID(const std::string& strProgID) override {
    data().realTimePage = strProgID;
  }
  std::int16_t get_SensorHandle() const override { return data().sensorHandle; }
  void put_SensorHandle(std::int16_t iHandle) override { data().sensorHandle = iHandle; }
  std::string get_SensorFormat() const override { return data().sensorFormat; }
  void put_SensorFormat(const std::string& strFormat) override { data().sensorFormat = strFormat; }

  std::vector<std::shared_ptr<host::Device>> get_Modules() const override;
  std::vector<std::shared_ptr<host::ModuleCommandSlot>> get_CommandSlots() const override;

  std::shared_ptr<host::DeviceProperty> GetProperty(const std::string& strName) const override;
  std::shared_ptr<host::PropertyList> get_Properties() const override;
  bool HasProperties(bool bAdvanced) const override;

  bool HasSignal(const std::string& strSignalName, std::int16_t iDirection,
                 std::int16_t iSignalType) const override;
  std::shared_ptr<host::CommandList> GetCommandList(std::int16_t iDirection,
                                                    std::int16_t iSignalType) const override;
  std::shared_ptr<host::DeviceCommand> FindCommand(const std::string& strName,
                                                   std::int16_t iDirection,
                                                   std::int16_t iSignalType) const override;

  std::string GetCommandName(const std::string& strStandardID) const override;
  void SetCommandName(const std::string& strStandardID, const std::string& strCommandName,
                      bool& bChanged) override;
  std::string GetDefaultCommandName(std::int16_t iStandardID) const override;
  std::vector<std::shared_ptr<host::StandardCommand>> get_StandardCommands() const override;
  void AddStandardCommand(const std::shared_ptr<host::StandardCommand>& oCommand,
                          std::string& strWarning) override;

  void CreateFromLibrary(const std::shared_ptr<host::LibraryModule>& oEntry,
                         std::int16_t iParentID) override;

 private:
  void setLabelled(std::string& field, const std::string& value);

  DocumentPtr document_;
  DevicePtr data_;
};

}  // namespace trellisar
