#include "trellisar/objects/DeviceParts.h"

#include <utility>

#include "host/Error.h"

namespace trellisar {
namespace {

class Property : public host::DeviceProperty {
 public:
  Property(DocumentPtr document, DevicePtr device, std::string name)
      : document_(std::move(document)), device_(std::move(device)), name_(std::move(name)) {}

  std::string get_Name() const override { return name_; }
  std::string get_Value() const override { return *device_->findProperty(name_); }

  bool SetValue(const std::string& strValue) override {
    if (!device_->definition->findProperty(name_)->takes(strValue)) return false;
    std::string& value = *device_->findProperty(name_);
    if (value == strValue) return true;
    value = strValue;
    if (document_) document_->markProgramChanged();
    return true;
  }

 private:
  DocumentPtr document_;
  DevicePtr device_;
  std::string name_;
};

class PropertyListObject : public host::PropertyList {
 public:
  PropertyListObject(DocumentPtr document, DevicePtr device)
      : document_(std::move(document)), device_(std::move(device)) {}

  std::shared_ptr<host::DeviceProperty> Item(const std::string& strName) const override {
    if (auto property = makeProperty(document_, device_, strName)) return property;
    throw host::Error(host::errUnknownKey,
                      "The device \"" + device_->name + "\" has no property \"" + strName + "\".");
  }

  std::vector<std::shared_ptr<host::DeviceProperty>> Items() const override {
    std::vector<std::shared_ptr<host::DeviceProperty>> items;
    for (const auto& [name, value] : device_->properties) {
      items.push_back(makeProperty(document_, device_, name));
    }
    return items;
  }

 private:
  DocumentPtr document_;
  DevicePtr device_;
};

class Command : public host::DeviceCommand {
 public:
  explicit Command(CommandDefinition definition) : definition_(std::move(definition)) {}
  std::string get_Name() const override { return definition_.name; }
  std::int16_t get_CommandType() const override { return definition_.type; }

 private:
  CommandDefinition definition_;
};

class CommandListObject : public host::CommandList {
 public:
  explicit CommandListObject(DefinitionPtr definition) : definition_(std::move(definition)) {}

  bool Exists(const std::string& strName) const override {
    return definition_->findCommand(strName) != nullptr;
  }

  std::vector<std::shared_ptr<host::DeviceCommand>> Items() const override {
    std::vector<std::shared_ptr<host::DeviceCommand>> items;
    for (const CommandDefinition& command : definition_->commands) {
      items.push_back(makeCommand(command));
    }
    return items;
  }

 private:
  DefinitionPtr definition_;
};

class Slot : public host::ModuleCommandSlot {
 public:
  Slot(DocumentPtr document, std::shared_ptr<SlotData> data)
      : document_(std::move(document)), data_(std::move(data)) {}

  std::string get_Name() const override { return data_->name; }
  std::int16_t get_DeviceID() const override { return data_->device; }
  void put_DeviceID(std::int16_t iDeviceID) override { set(data_->device, iDeviceID); }
  std::string get_CommandName() const override { return data_->command; }
  void put_CommandName(const std::string& strCommandName) override {
    set(data_->command, strCommandName);
  }

 private:
  template <typename T>
  void set(T& field, const T& value) {
    if (field == value) return;
    field = value;
    if (document_) document_->markProgramChanged();
  }

  DocumentPtr document_;
  std::shared_ptr<SlotData> data_;
};

}  // namespace

std::shared_ptr<host::DeviceProperty> makeProperty(const DocumentPtr& document,
                                                   const DevicePtr& device,
                                                   const std::string& name) {
  if (!device->findProperty(name)) return nullptr;
  return std::make_shared<Property>(document, device, name);
}

std::shared_ptr<host::PropertyList> makePropertyList(const DocumentPtr& document,
                                                     const DevicePtr& device) {
  return std::make_shared<PropertyListObject>(document, device);
}

std::shared_ptr<host::CommandList> makeCommandList(const DefinitionPtr& definition) {
  return std::make_shared<CommandListObject>(definition);
}

std::shared_ptr<host::CommandList> makeEmptyCommandList() {
  return makeCommandList(emptyDefinition());
}

std::shared_ptr<host::DeviceCommand> makeCommand(const CommandDefinition& command) {
  return std::make_shared<Command>(command);
}

std::shared_ptr<host::ModuleCommandSlot> makeSlot(const DocumentPtr& document,
                                                  const std::shared_ptr<SlotData>& slot) {
  return std::make_shared<Slot>(document, slot);
}

}  // namespace trellisar
