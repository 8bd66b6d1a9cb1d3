#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// The types of devices that the host offers.
class DeviceTypes {
 public:
  virtual ~DeviceTypes() = default;
  /// Offers only the devices of these types, until the next call; nothing offers all.
  virtual void put_DeviceFilter(const std::optional<std::vector<std::int16_t>>& colIDs) = 0;
};

class Model {
 public:
  virtual ~Model() = default;
  virtual std::int16_t get_ModelID() const = 0;
  virtual std::string get_Name() const = 0;
  virtual std::int32_t get_PartID() const = 0;  // 0: none
};

class Models {
 public:
  virtual ~Models() = default;
  /// Raises Error errUnknownKey for a model that the library does not have. iLibraryID is 0 for the
  /// library in use.
  virtual std::shared_ptr<Model> Item(std::int16_t iLibraryID, std::int16_t iModelID) const = 0;
};

/// A module that can hang below a device.
class LibraryModule {
 public:
  virtual ~LibraryModule() = default;
  virtual std::int16_t get_ID() const = 0;
  virtual std::string get_ShortName() const = 0;
  virtual std::string get_Name() const = 0;
  virtual std::string get_Description() const = 0;
  virtual std::string get_Maker() const = 0;
};

/// A device that the library offers.
class LibraryDevice {
 public:
  virtual ~LibraryDevice() = default;
  virtual std::string get_Name() const = 0;
  virtual std::string get_Description() const = 0;
  virtual std::int16_t get_ControlEntryID() const = 0;
  virtual std::int16_t get_ModelID() const = 0;
  virtual std::int32_t get_PartID() const = 0;  // for the bill of materials; 0: none
  virtual std::int16_t get_Kind() const = 0;    // kindUsable, or another kind of entry
};

/// What fits into a slot, in the library's order.
class SlotDefinition {
 public:
  virtual ~SlotDefinition() = default;
  virtual std::vector<std::shared_ptr<LibraryDevice>> get_LibraryDevices() const = 0;
};

class LibraryManager {
 public:
  virtual ~LibraryManager() = default;
  virtual std::shared_ptr<DeviceTypes> get_DeviceTypes() const = 0;
  virtual std::shared_ptr<Models> get_Models() const = 0;
  /// In the library's order.
  virtual std::vector<std::shared_ptr<LibraryModule>> get_Modules() const = 0;
  /// The folder of the pictures of device types, with backslashes; a closing one may be missing.
  virtual std::string get_PicturesFolder() const = 0;
};

}  // namespace host
