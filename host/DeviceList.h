#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/Device.h"

namespace host {

/// The modules that AddModules is to add, each under its key.
class ModuleList {
 public:
  /// Raises nothing: a second module under a key takes the first one's place.
  void Add(const std::shared_ptr<Device>& oModule, const std::string& strKey) {
    for (auto& [strOther, oOther] : m_colItems) {
      if (strOther == strKey) {
        oOther = oModule;
        return;
      }
    }
    m_colItems.emplace_back(strKey, oModule);
  }

  const std::vector<std::pair<std::string, std::shared_ptr<Device>>>& Items() const {
    return m_colItems;
  }

 private:
  std::vector<std::pair<std::string, std::shared_ptr<Device>>> m_colItems;
};

/// The devices of a document in the order in which they were added, the control system first;
/// modules are not among them but are found by id. Names are compared exactly.
class DeviceList {
 public:
  virtual ~DeviceList() = default;
  virtual std::int16_t get_Count() const = 0;
  /// A blank device with id 0 when absent.
  virtual std::shared_ptr<Device> Item(std::int16_t iDeviceID) const = 0;
  /// Nothing when absent.
  virtual std::shared_ptr<Device> ItemByID(std::int16_t iDeviceID) const = 0;
  /// The device of that name below the device that is named strParentName; nothing when absent.
  virtual std::shared_ptr<Device> FindByName(const std::string& strName,
                                             const std::string& strParentName) const = 0;
  virtual std::vector<std::shared_ptr<Device>> Items() const = 0;
  /// As Document::AddModules.
  [[nodiscard]] virtual std::int16_t AddModules(const ModuleList& colModules,
                                                std::shared_ptr<Device>& oDevice) = 0;
};

/// A user interface of the document.
class Touchpanel {
 public:
  virtual ~Touchpanel() = default;
  virtual std::int16_t get_ID() const = 0;
  virtual std::string get_Name() const = 0;
  virtual std::string get_Label() const = 0;
  virtual void put_Label(const std::string& strLabel) = 0;
  virtual std::int16_t get_ModelID() const = 0;
  virtual std::int16_t get_ControlEntryID() const = 0;
  virtual std::int16_t get_DeviceHandle() const = 0;
  virtual std::int16_t get_ConnectSlot() const = 0;
  virtual void put_ConnectSlot(std::int16_t iSlot) = 0;
  virtual bool get_IsProjectPanel() const = 0;  // its project is generated
  virtual bool get_ProjectBuilt() const = 0;
  virtual void put_ProjectBuilt(bool bBuilt) = 0;
};

/// As DeviceList.
class TouchpanelList {
 public:
  virtual ~TouchpanelList() = default;
  virtual std::int16_t get_Count() const = 0;
  /// A blank panel with id 0 when absent.
  virtual std::shared_ptr<Touchpanel> Item(std::int16_t iDeviceID) const = 0;
  virtual std::shared_ptr<Touchpanel> ItemByID(std::int16_t iDeviceID) const = 0;
  virtual std::shared_ptr<Touchpanel> FindByName(const std::string& strName,
                                                 const std::string& strParentName) const = 0;
  virtual std::vector<std::shared_ptr<Touchpanel>> Items() const = 0;
};

}  // namespace host
