#include "trellisar/objects/DeviceObject.h"

#include <utility>

#include "forms/Numbers.h"
#include "host/Error.h"
#include "host/Numbers.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/objects/DeviceParts.h"
#include "trellisar/objects/LibraryObjects.h"

namespace trellisar {
namespace {

std::int16_t standardIdOf(const std::string& text) {
  return forms::toInt16(forms::leadingNumber(text));
}

bool isCommand(std::int16_t direction, std::int16_t signalType) {
  return direction == host::directionInput && signalType == host::signalDigital;
}

}  // namespace

DeviceObject::DeviceObject(DocumentPtr document, DevicePtr data)
    : document_(std::move(document)), data_(std::move(data)) {}

DeviceObject::DeviceObject() : data_(std::make_shared<DeviceData>()) {
  data_->kind = DeviceData::Kind::module;
}

std::shared_ptr<host::Device> DeviceObject::orNothing(const DocumentPtr& document,
                                                      const DevicePtr& device) {
  return device ? std::make_shared<DeviceObject>(document, device) : nullptr;
}

DeviceData& DeviceObject::data() const {
  if (!data_->isGone && !(document_ && document_->isClosed)) return *data_;
  throw host::Error(host::errDocumentClosed,
                    "The device \"" + data_->name + "\" is no longer in the system.");
}

std::int16_t DeviceObject::get_ID() const { return data_->isGone ? std::int16_t{0} : data_->id; }

void DeviceObject::setLabelled(std::string& field, const std::string& value) {
  if (field == value) return;
  field = value;
  if (document_) document_->markLabelChanged();
}

void DeviceObject::put_Name(const std::string& strName) { setLabelled(data().name, strName); }

void DeviceObject::put_ShortName(const std::string& strShortName) {
  data().shortName = strShortName;
}

void DeviceObject::put_Label(const std::string& strLabel) { setLabelled(data().label, strLabel); }

void DeviceObject::put_Description(const std::string& strDescription) {
  setLabelled(data().description, strDescription);
}

void DeviceObject::put_Maker(const std::string& strMaker) { setLabelled(data().maker, strMaker); }

std::string DeviceObject::get_IOAssignment() const { return portText(data()); }

void DeviceObject::put_PowerControlType(std::int16_t iType) {
  if (iType < host::powerNone || iType > host::powerDiscrete) {
    throw host::Error(host::errBadArgument,
                      "There is no power control type " + std::to_string(iType) + ".");
  }
  data().powerControl = iType;
}

std::vector<std::shared_ptr<host::Device>> DeviceObject::get_Modules() const {
  std::vector<std::shared_ptr<host::Device>> items;
  for (const DevicePtr& module : data().modules) {
    items.push_back(std::make_shared<DeviceObject>(document_, module));
  }
  return items;
}

std::vector<std::shared_ptr<host::ModuleCommandSlot>> DeviceObject::get_CommandSlots() const {
  std::vector<std::shared_ptr<host::ModuleCommandSlot>> items;
  for (const auto& slot : data().slots) items.push_back(makeSlot(document_, slot));
  return items;
}

std::shared_ptr<host::DeviceProperty> DeviceObject::GetProperty(const std::string& strName) const {
  data();
  return makeProperty(document_, data_, strName);
}

std::shared_ptr<host::PropertyList> DeviceObject::get_Properties() const {
  data();
  return makePropertyList(document_, data_);
}

bool DeviceObject::HasProperties(bool bAdvanced) const {
  for (const PropertyDefinition& property : data().definition->properties) {
    if (bAdvanced || !property.advanced) return true;
  }
  return false;
}

bool DeviceObject::HasSignal(const std::string& strSignalName, std::int16_t iDirection,
                             std::int16_t iSignalType) const {
  return data().definition->hasSignal(strSignalName, iDirection, iSignalType);
}

std::shared_ptr<host::CommandList> DeviceObject::GetCommandList(std::int16_t iDirection,
                                                                std::int16_t iSignalType) const {
  if (!isCommand(iDirection, iSignalType)) return makeEmptyCommandList();
  return makeCommandList(data().definition);
}

std::shared_ptr<host::DeviceCommand> DeviceObject::FindCommand(const std::string& strName,
                                                               std::int16_t iDirection,
                                                               std::int16_t iSignalType) const {
  const CommandDefinition* command =
      isCommand(iDirection, iSignalType) ? data().definition->findCommand(strName) : nullptr;
  return command ? makeCommand(*command) : nullptr;
}

std::string DeviceObject::GetCommandName(const std::string& strStandardID) const {
  const std::int16_t id = standardIdOf(strStandardID);
  const host::StandardCommand* entry = data().findStandardCommand(id);
  return entry ? entry->get_CommandName() : GetDefaultCommandName(id);
}

void DeviceObject::SetCommandName(const std::string& strStandardID,
                                  const std::string& strCommandName, bool& bChanged) {
  bChanged = GetCommandName(strStandardID) != strCommandName;
  const std::int16_t id = standardIdOf(strStandardID);
  if (host::StandardCommand* entry = data().findStandardCommand(id)) {
    entry->put_CommandName(strCommandName);
    return;
  }
  const auto entry = std::make_shared<host::StandardCommand>();
  entry->put_DeviceID(data().id);
  entry->put_StandardID(id);
  entry->put_Name(forms::decimal(id));
  entry->put_LibraryID(data().libraryId);
  entry->put_CommandName(strCommandName);
  data().standardCommands.push_back(entry);
}

std::string DeviceObject::GetDefaultCommandName(std::int16_t iStandardID) const {
  return data().definition->defaultCommand(iStandardID);
}

std::vector<std::shared_ptr<host::StandardCommand>> DeviceObject::get_StandardCommands() const {
  return data().standardCommands;
}

void DeviceObject::AddStandardCommand(const std::shared_ptr<host::StandardCommand>& oCommand,
                                      std::string& strWarning) {
  const std::string& command = oCommand->get_CommandName();
  strWarning.clear();
  if (command.empty() || !data().definition->findCommand(command)) {
    strWarning = "The driver of \"" + data().name + "\" has no command for the standard command " +
                 forms::decimal(oCommand->get_StandardID()) + ".";
  }
  if (host::StandardCommand* entry = data().findStandardCommand(oCommand->get_StandardID())) {
    *entry = *oCommand;
    return;
  }
  data().standardCommands.push_back(std::make_shared<host::StandardCommand>(*oCommand));
}

void DeviceObject::CreateFromLibrary(const std::shared_ptr<host::LibraryModule>& oEntry,
                                     std::int16_t iParentID) {
  const auto entry = std::dynamic_pointer_cast<LibraryModuleObject>(oEntry);
  if (document_ || !entry) {
    throw host::Error(host::errBadArgument,
                      "Only a new module can be made from a module of the library.");
  }
  DeviceData& module = *data_;
  module.parent = iParentID;
  module.libraryId = entry->get_ID();
  module.shortName = entry->get_ShortName();
  if (module.name.empty()) module.name = entry->get_Name();
  if (module.description.empty()) module.description = entry->get_Description();
  if (module.maker.empty()) module.maker = entry->get_Maker();
  takeDefinition(module, entry->definition());
}

}  // namespace trellisar
