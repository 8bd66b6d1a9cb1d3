#include "trellisar/objects/LibraryObjects.h"

#include <algorithm>

#include "host/Error.h"

namespace trellisar {
namespace {

class DeviceTypes : public host::DeviceTypes {
 public:
  explicit DeviceTypes(std::shared_ptr<DeviceFilter> filter) : filter_(std::move(filter)) {}
  void put_DeviceFilter(const std::optional<std::vector<std::int16_t>>& colIDs) override {
    *filter_ = colIDs;
  }

 private:
  std::shared_ptr<DeviceFilter> filter_;
};

class Model : public host::Model {
 public:
  explicit Model(DefinitionPtr definition) : definition_(std::move(definition)) {}
  std::int16_t get_ModelID() const override { return definition_->modelId; }
  std::string get_Name() const override { return definition_->model; }
  std::int32_t get_PartID() const override { return definition_->part; }

 private:
  DefinitionPtr definition_;
};

class Models : public host::Models {
 public:
  explicit Models(std::shared_ptr<const DeviceLibrary> library) : library_(std::move(library)) {}
  std::shared_ptr<host::Model> Item(std::int16_t, std::int16_t iModelID) const override {
    if (const DefinitionPtr definition = library_->findModel(iModelID)) {
      return std::make_shared<Model>(definition);
    }
    throw host::Error(host::errUnknownKey,
                      "The device library has no model " + std::to_string(iModelID) + ".");
  }

 private:
  std::shared_ptr<const DeviceLibrary> library_;
};

class LibraryDevice : public host::LibraryDevice {
 public:
  LibraryDevice(const DeviceLibrary& library, const ListedDefinition& listing)
      : library_(library), listing_(listing) {}
  std::string get_Name() const override { return std::string(listing_.name); }
  std::string get_Description() const override {
    return library_.definition(listing_)->description;
  }
  std::int16_t get_ControlEntryID() const override { return listing_.controlEntry; }
  std::int16_t get_ModelID() const override { return listing_.modelId; }
  std::int32_t get_PartID() const override { return listing_.part; }
  std::int16_t get_Kind() const override { return listing_.kind; }

 private:
  const DeviceLibrary& library_;
  const ListedDefinition& listing_;
};

/// What holds the devices of a slot, and the library that their texts are of, as long as one lives.
struct SlotDevices {
  std::shared_ptr<const DeviceLibrary> library;
  std::vector<LibraryDevice> devices = {};
};

class SlotDefinition : public host::SlotDefinition {
 public:
  explicit SlotDefinition(std::vector<std::shared_ptr<host::LibraryDevice>> devices)
      : devices_(std::move(devices)) {}
  std::vector<std::shared_ptr<host::LibraryDevice>> get_LibraryDevices() const override {
    return devices_;
  }

 private:
  std::vector<std::shared_ptr<host::LibraryDevice>> devices_;
};

}  // namespace

LibraryManager::LibraryManager(std::shared_ptr<const DeviceLibrary> library,
                               std::string picturesFolder)
    : library_(std::move(library)), picturesFolder_(std::move(picturesFolder)) {}

std::shared_ptr<host::DeviceTypes> LibraryManager::get_DeviceTypes() const {
  return std::make_shared<DeviceTypes>(filter_);
}

std::shared_ptr<host::Models> LibraryManager::get_Models() const {
  return std::make_shared<Models>(library_);
}

std::vector<std::shared_ptr<host::LibraryModule>> LibraryManager::get_Modules() const {
  std::vector<std::shared_ptr<host::LibraryModule>> items;
  for (const DefinitionPtr& module : library_->all(Definition::Form::module)) {
    items.push_back(std::make_shared<LibraryModuleObject>(module));
  }
  return items;
}

std::vector<const ListedDefinition*> LibraryManager::offered(const std::string& category) const {
  std::vector<const ListedDefinition*> devices = library_->listed(Definition::Form::device);
  std::erase_if(devices, [&](const ListedDefinition* device) {
    if (device->category != category) return true;
    const DeviceFilter& types = *filter_;
    return types && std::find(types->begin(), types->end(), device->type) == types->end();
  });
  return devices;
}

std::shared_ptr<host::SlotDefinition> makeSlotDefinition(
    const std::shared_ptr<const DeviceLibrary>& library, std::int16_t slot) {
  const auto held = std::make_shared<SlotDevices>(SlotDevices{library});
  const auto listed = library->listed(Definition::Form::device);
  held->devices.reserve(listed.size());
  for (const ListedDefinition* device : listed) {
    if (device->slot == slot) held->devices.emplace_back(*library, *device);
  }
  std::vector<std::shared_ptr<host::LibraryDevice>> devices;
  devices.reserve(held->devices.size());
  for (LibraryDevice& device : held->devices) devices.emplace_back(held, &device);
  return std::make_shared<SlotDefinition>(std::move(devices));
}

std::shared_ptr<host::SlotDefinition> makeEmptySlotDefinition() {
  return std::make_shared<SlotDefinition>(std::vector<std::shared_ptr<host::LibraryDevice>>());
}

}  // namespace trellisar
