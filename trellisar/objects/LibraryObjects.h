#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/Library.h"
#include "trellisar/library/DeviceLibrary.h"

namespace trellisar {

class LibraryModuleObject : public host::LibraryModule {
 public:
  explicit LibraryModuleObject(DefinitionPtr definition) : definition_(std::move(definition)) {}
  const DefinitionPtr& definition() const { return definition_; }

  std::int16_t get_ID() const override { return definition_->id; }
  std::string get_ShortName() const override { return definition_->shortName; }
  std::string get_Name() const override { return definition_->name; }
  std::string get_Description() const override { return definition_->description; }
  std::string get_Maker() const override { return definition_->maker; }

 private:
  DefinitionPtr definition_;
};

/// The device types that are offered; no value offers all. Shared between the library manager and
/// the device dialog.
using DeviceFilter = std::optional<std::vector<std::int16_t>>;

class LibraryManager : public host::LibraryManager {
 public:
  /// `picturesFolder` has backslashes.
  LibraryManager(std::shared_ptr<const DeviceLibrary> library, std::string picturesFolder);

  std::shared_ptr<host::DeviceTypes> get_DeviceTypes() const override;
  std::shared_ptr<host::Models> get_Models() const override;
  std::vector<std::shared_ptr<host::LibraryModule>> get_Modules() const override;
  std::string get_PicturesFolder() const override { return picturesFolder_; }

  /// The devices of a category among the types of the filter, in the library's order.
  std::vector<const ListedDefinition*> offered(const std::string& category) const;

 private:
  std::shared_ptr<const DeviceLibrary> library_;
  std::string picturesFolder_;
  std::shared_ptr<DeviceFilter> filter_ = std::make_shared<DeviceFilter>();
};

/// What the library offers for a slot.
std::shared_ptr<host::SlotDefinition> makeSlotDefinition(
    const std::shared_ptr<const DeviceLibrary>& library, std::int16_t slot);
std::shared_ptr<host::SlotDefinition> makeEmptySlotDefinition();

}  // namespace trellisar
