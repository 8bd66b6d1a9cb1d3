#include "trellisar/objects/DeviceLists.h"

#include <utility>

#include "forms/Numbers.h"
#include "forms/Text.h"
#include "host/Error.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/objects/DeviceObject.h"
#include "trellisar/panels/PanelState.h"

namespace trellisar {
namespace {

using Kind = DeviceData::Kind;

class DeviceListObject : public host::DeviceList {
 public:
  explicit DeviceListObject(DocumentPtr document) : document_(std::move(document)) {}

  std::int16_t get_Count() const override {
    return forms::toInt16(static_cast<double>(document_->devices.size()));
  }

  std::shared_ptr<host::Device> Item(std::int16_t iDeviceID) const override {
    if (auto device = ItemByID(iDeviceID)) return device;
    return std::make_shared<DeviceObject>(nullptr, std::make_shared<DeviceData>());
  }

  std::shared_ptr<host::Device> ItemByID(std::int16_t iDeviceID) const override {
    const DevicePtr device = document_->find(iDeviceID);
    if (!device || device->kind == Kind::panel) return nullptr;
    return DeviceObject::orNothing(document_, device);
  }

  std::shared_ptr<host::Device> FindByName(const std::string& strName,
                                           const std::string& strParentName) const override {
    return DeviceObject::orNothing(document_,
                                   document_->findByName(Kind::device, strName, strParentName));
  }

  std::vector<std::shared_ptr<host::Device>> Items() const override {
    std::vector<std::shared_ptr<host::Device>> items;
    for (const DevicePtr& device : document_->devices) {
      items.push_back(DeviceObject::orNothing(document_, device));
    }
    return items;
  }

  std::int16_t AddModules(const host::ModuleList& colModules,
                          std::shared_ptr<host::Device>& oDevice) override {
    return addModules(document_, colModules, oDevice);
  }

 private:
  DocumentPtr document_;
};

class TouchpanelObject : public host::Touchpanel {
 public:
  TouchpanelObject(DocumentPtr document, DevicePtr data)
      : document_(std::move(document)), data_(std::move(data)) {}

  std::int16_t get_ID() const override { return data_->isGone ? std::int16_t{0} : data_->id; }
  std::string get_Name() const override { return data().name; }
  std::string get_Label() const override { return data().label; }
  void put_Label(const std::string& strLabel) override {
    if (data().label == strLabel) return;
    data().label = strLabel;
    if (document_) document_->markLabelChanged();
  }
  std::int16_t get_ModelID() const override { return data().definition->modelId; }
  std::int16_t get_ControlEntryID() const override { return data().definition->controlEntry; }
  std::int16_t get_DeviceHandle() const override { return data().handle; }
  std::int16_t get_ConnectSlot() const override { return data().connectSlot; }
  void put_ConnectSlot(std::int16_t iSlot) override { data().connectSlot = iSlot; }
  bool get_IsProjectPanel() const override { return data().definition->projectPanel; }
  bool get_ProjectBuilt() const override { return document_ && isProjectBuilt(*document_, data()); }
  void put_ProjectBuilt(bool bBuilt) override { data().projectBuilt = bBuilt; }

 private:
  DeviceData& data() const {
    if (!data_->isGone && !(document_ && document_->isClosed)) return *data_;
    throw host::Error(host::errDocumentClosed,
                      "The touch panel \"" + data_->name + "\" is no longer in the system.");
  }

  DocumentPtr document_;
  DevicePtr data_;
};

class TouchpanelListObject : public host::TouchpanelList {
 public:
  explicit TouchpanelListObject(DocumentPtr document) : document_(std::move(document)) {}

  std::int16_t get_Count() const override {
    return forms::toInt16(static_cast<double>(document_->panels.size()));
  }

  std::shared_ptr<host::Touchpanel> Item(std::int16_t iDeviceID) const override {
    if (auto panel = ItemByID(iDeviceID)) return panel;
    return std::make_shared<TouchpanelObject>(nullptr, std::make_shared<DeviceData>());
  }

  std::shared_ptr<host::Touchpanel> ItemByID(std::int16_t iDeviceID) const override {
    return makeTouchpanel(document_, document_->find(iDeviceID, Kind::panel));
  }

  std::shared_ptr<host::Touchpanel> FindByName(const std::string& strName,
                                               const std::string& strParentName) const override {
    return makeTouchpanel(document_, document_->findByName(Kind::panel, strName, strParentName));
  }

  std::vector<std::shared_ptr<host::Touchpanel>> Items() const override {
    std::vector<std::shared_ptr<host::Touchpanel>> items;
    for (const DevicePtr& panel : document_->panels) {
      items.push_back(makeTouchpanel(document_, panel));
    }
    return items;
  }

 private:
  DocumentPtr document_;
};

bool hasModule(const DeviceData& device, const std::string& shortName) {
  for (const DevicePtr& module : device.modules) {
    if (forms::equalsIgnoringCase(module->shortName, shortName)) return true;
  }
  return false;
}

}  // namespace

std::shared_ptr<host::DeviceList> makeDeviceList(const DocumentPtr& document) {
  return std::make_shared<DeviceListObject>(document);
}

std::shared_ptr<host::TouchpanelList> makeTouchpanelList(const DocumentPtr& document) {
  return std::make_shared<TouchpanelListObject>(document);
}

std::shared_ptr<host::Touchpanel> makeTouchpanel(const DocumentPtr& document,
                                                 const DevicePtr& panel) {
  return panel ? std::make_shared<TouchpanelObject>(document, panel) : nullptr;
}

std::int16_t addModules(const DocumentPtr& document, const host::ModuleList& modules,
                        std::shared_ptr<host::Device>& device) {
  const DevicePtr below = device ? document->find(device->get_ID(), Kind::device) : nullptr;
  if (!below) return 0;
  std::int16_t count = 0;
  for (const auto& [key, module] : modules.Items()) {
    const auto draft = std::dynamic_pointer_cast<DeviceObject>(module);
    if (!draft || draft->data().definition->form != Definition::Form::module) continue;
    const DeviceData& data = draft->data();
    if (hasModule(*below, data.shortName) || addModule(*document, below, data)) ++count;
  }
  device = DeviceObject::orNothing(document, below);
  return count;
}

}  // namespace trellisar
