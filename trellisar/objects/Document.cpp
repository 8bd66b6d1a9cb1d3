#include "trellisar/objects/Document.h"

#include <algorithm>

#include "host/Error.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/document/Provisioning.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/objects/BillObjects.h"
#include "trellisar/objects/DeviceLists.h"
#include "trellisar/objects/DeviceObject.h"
#include "trellisar/objects/LibraryObjects.h"
#include "trellisar/objects/ProgramObjects.h"
#include "trellisar/objects/SystemInfoObject.h"

namespace trellisar {
namespace {

using Kind = DeviceData::Kind;

/// Those that are in the second list alone, each on a line of its own.
std::string addedLines(const std::vector<std::string>& before,
                       const std::vector<std::string>& after) {
  std::string added;
  for (const std::string& line : after) {
    if (std::find(before.begin(), before.end(), line) == before.end()) added += "\r\n" + line;
  }
  return added;
}

}  // namespace

const DocumentPtr& Document::open() const {
  if (!data_->isClosed) return data_;
  throw host::Error(host::errDocumentClosed, "The system has been closed.");
}

void Document::SetModified(bool bModified, bool bProgram, bool) {
  data().note(std::string("SetModified ") + (bModified ? "True" : "False"));
  data().isModified = bModified;
  if (bModified && bProgram) data().programIsCurrent = false;
}

void Document::Close() {
  data_->note("Close");
  data_->isClosed = true;
  data_->use = nullptr;
}

void Document::Save(const std::string& strFile, bool& bSaved) {
  data().note("Save " + strFile);
  bSaved = false;
  try {
    saveSystemFile(data(), strFile);
    data().isModified = false;
    bSaved = true;
  } catch (const host::Error& error) {
    data().lastError = error.description();
  }
}

std::shared_ptr<host::DeviceList> Document::get_Devices() const { return makeDeviceList(open()); }

std::shared_ptr<host::TouchpanelList> Document::get_Touchpanels() const {
  return makeTouchpanelList(open());
}

std::shared_ptr<host::Device> Document::get_ControlSystem() const {
  return get_Devices()->Item(data().controlSystem);
}

std::shared_ptr<host::SystemInfo> Document::get_SystemInfo() const {
  return makeSystemInfo(open());
}

std::shared_ptr<host::PresetList> Document::get_Presets() const { return makePresetList(open()); }

std::shared_ptr<host::SignalList> Document::get_Signals() const { return makeSignalList(open()); }

std::shared_ptr<host::Reports> Document::get_Reports() const { return makeReports(open()); }

bool Document::remove(std::int16_t id, Kind kind, const char* what) {
  const DevicePtr device = data().find(id, kind);
  if (!device) {
    data().lastError = std::string(what) + " " + std::to_string(id) + " is not in the system.";
    return false;
  }
  if (id == data().controlSystem) {
    data().lastError = "\"" + device->name + "\" is the control system and can't be removed.";
    return false;
  }
  removeDevice(data(), device);
  return true;
}

bool Document::RemoveDevice(std::int16_t iDeviceID, const host::RemovalFlags&) {
  data().note("RemoveDevice " + data().shownName(iDeviceID));
  return remove(iDeviceID, Kind::device, "Device");
}

bool Document::RemoveTouchpanel(std::int16_t iDeviceID, const host::RemovalFlags&) {
  data().note("RemoveTouchpanel " + data().shownName(iDeviceID));
  return remove(iDeviceID, Kind::panel, "Touch panel");
}

std::shared_ptr<host::SlotDefinition> Document::GetSlotDefinition(std::int16_t iSlot,
                                                                  std::string& strError) const {
  strError.clear();
  try {
    auto& slot = slots_[iSlot];
    if (!slot) slot = makeSlotDefinition(data().library, iSlot);
    return slot;
  } catch (const host::Error& error) {
    strError = error.description();
    return makeEmptySlotDefinition();
  }
}

void Document::ChangeControlSystem(std::int16_t iModelID, const std::string&, std::int16_t,
                                   std::string& strMessage) {
  data().note("ChangeControlSystem " + std::to_string(iModelID));
  strMessage.clear();
  const DevicePtr receiver = data().find(data().controlSystem);
  if (receiver->definition->modelId == iModelID) return;
  const DefinitionPtr definition = data().library->findReceiver(iModelID);
  if (!definition) {
    strMessage = "The device library has no receiver of model " + std::to_string(iModelID) +
                 ". The receiver stays as it is.";
    return;
  }
  const std::vector<std::string> before = programErrors(data());
  changeReceiver(data(), definition);
  dropLostSignals(data(), *receiver);
  const std::string errors = addedLines(before, programErrors(data()));
  if (errors.empty()) return;
  strMessage = "The program uses what the receiver's model " + definition->model +
               " does not have:\r\n" + errors;
}

std::int16_t Document::AddModules(const host::ModuleList& colModules,
                                  std::shared_ptr<host::Device>& oDevice) {
  return addModules(open(), colModules, oDevice);
}

}  // namespace trellisar
