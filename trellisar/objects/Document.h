#pragma once

#include <map>
#include <memory>
#include <string>

#include "host/Document.h"
#include "trellisar/document/DocumentData.h"

namespace trellisar {

/// The open system, a handle over its data.
class Document : public host::Document {
 public:
  explicit Document(DocumentPtr data) : data_(std::move(data)) {}

  /// Raises host::Error errDocumentClosed when the document was closed.
  DocumentData& data() const { return *open(); }
  const DocumentPtr& open() const;
  bool isOpen() const { return !data_->isClosed; }

  std::string get_Name() const override { return data().name; }
  void put_Name(const std::string& strName) override { data().name = strName; }
  std::string get_Path() const override { return data().folder; }
  void put_Path(const std::string& strPath) override { data().folder = strPath; }
  bool get_Modified() const override { return data().isModified; }
  void SetModified(bool bModified, bool bProgram, bool bNotify) override;
  std::string GetLastError() const override { return data().lastError; }
  void Close() override;
  void Save(const std::string& strFile, bool& bSaved) override;

  std::shared_ptr<host::DeviceList> get_Devices() const override;
  std::shared_ptr<host::TouchpanelList> get_Touchpanels() const override;
  std::shared_ptr<host::Device> get_ControlSystem() const override;
  std::shared_ptr<host::SystemInfo> get_SystemInfo() const override;
  std::shared_ptr<host::PresetList> get_Presets() const override;
  std::shared_ptr<host::SignalList> get_Signals() const override;
  std::shared_ptr<host::Reports> get_Reports() const override;

  bool RemoveDevice(std::int16_t iDeviceID, const host::RemovalFlags& flags) override;
  bool RemoveTouchpanel(std::int16_t iDeviceID, const host::RemovalFlags& flags) override;
  std::shared_ptr<host::SlotDefinition> GetSlotDefinition(std::int16_t iSlot,
                                                          std::string& strError) const override;
  void ChangeControlSystem(std::int16_t iModelID, const std::string& strReserved,
                           std::int16_t iReserved, std::string& strMessage) override;
  std::int16_t AddModules(const host::ModuleList& colModules,
                          std::shared_ptr<host::Device>& oDevice) override;

 private:
  bool remove(std::int16_t id, DeviceData::Kind kind, const char* what);

  DocumentPtr data_;
  /// The slots that were asked for: what the library offers for them stays as it is.
  mutable std::map<std::int16_t, std::shared_ptr<host::SlotDefinition>> slots_;
};

}  // namespace trellisar
