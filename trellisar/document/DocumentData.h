#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/FileIO.h"
#include "host/StandardCommand.h"
#include "host/StepCondition.h"
#include "trellisar/document/Journal.h"
#include "trellisar/library/Definition.h"
#include "trellisar/library/DeviceLibrary.h"

/// The document as plain data. A system file holds exactly this; the objects of the host's
/// interfaces are thin handles over it.
namespace trellisar {

struct PanelSource;
struct PresetData;

struct StepData {
  std::int16_t kind = 0;  // 0: not initialised
  std::int16_t targetType = 0;
  std::int32_t target = 0;
  std::string signal;
  std::string value;  // empty: none
  std::int16_t valueFormat = 0;
  std::optional<host::StepCondition> condition;
  std::shared_ptr<PresetData> branch;  // while the step stands in a preset
  PresetData* preset = nullptr;        // where it stands
};

/// A named preset, the preset of an event, or a branch.
struct PresetData {
  std::int32_t id = 0;  // holds for this run of the program; files call named presets by name
  int depth = 0;        // of a branch: how many conditional steps stand around it
  std::string name;
  std::string comment;
  std::vector<std::shared_ptr<StepData>> steps;
};

struct SignalData {
  SignalRow row;
  std::int16_t deviceId = 0;
  std::array<std::shared_ptr<PresetData>, 2> events;  // made when they are first asked for
  std::int16_t enabledEvents = 0;
  std::int16_t sourceType = 0;
  std::int16_t sourceDevice = 0;
  std::string sourceSignal;
};

struct SlotData {
  std::string name;
  std::int16_t device = 0;
  std::string command;
};

/// A device, a module or a touch panel.
struct DeviceData {
  enum class Kind { device, module, panel };

  Kind kind = Kind::device;
  std::int16_t id = 0;
  std::int16_t parent = 0;
  std::int16_t handle = 0;
  std::int16_t port = 0;  // counts from 1 among the ports of its connection; 0: none
  std::string name;
  std::string shortName;
  std::string label;
  std::string description;
  std::string maker;
  std::string address;  // of a device on the network
  DefinitionPtr definition = emptyDefinition();
  std::int16_t libraryId = 0;
  bool shown = true;
  std::int16_t powerControl = 0;
  std::string realTimePage;
  std::int16_t sensorHandle = 0;
  std::string sensorFormat;
  std::int16_t connectSlot = 0;  // of a panel, like the next one
  bool projectBuilt = false;     // one was finished; see isProjectBuilt
  std::vector<std::shared_ptr<host::StandardCommand>> standardCommands;
  std::vector<std::pair<std::string, std::string>> properties;  // as in the definition
  std::vector<std::shared_ptr<SlotData>> slots;
  std::vector<std::shared_ptr<DeviceData>> modules;
  std::vector<std::shared_ptr<SignalData>> signals;  // those that were asked for
  bool isGone = false;

  std::string* findProperty(std::string_view propertyName);
  host::StandardCommand* findStandardCommand(std::int16_t standardId);
  /// The command that stands for a standard command: the document's own comes before the driver's.
  /// Empty: none does.
  std::string commandFor(std::int16_t standardId) const;
};

using DevicePtr = std::shared_ptr<DeviceData>;

struct BillLine {
  std::int32_t part = 0;
  std::int32_t quantity = 1;
};

struct BillEntryData {
  std::int32_t key = 0;  // a device handle, or a negated device id
  BillLine main;
  std::vector<BillLine> parts;
};

/// The handle that stands for a power sensor, given when it is first asked for.
struct SensorHandle {
  std::int16_t model = 0;
  std::int16_t number = 0;
  std::int16_t handle = 0;
};

class DocumentData {
 public:
  explicit DocumentData(std::shared_ptr<const DeviceLibrary> deviceLibrary)
      : library(std::move(deviceLibrary)) {}

  std::shared_ptr<const DeviceLibrary> library;    // nothing for a document that is only looked at
  std::shared_ptr<Journal> journal;                // nothing: no calls are written down
  std::shared_ptr<const PanelSource> panelSource;  // nothing: panels have no projects here
  std::string name;
  std::string folder;             // with backslashes
  std::string ownDigest;          // of the content that ownFile had then
  std::filesystem::path ownFile;  // what it was opened from or saved to last; empty: none
  std::shared_ptr<const base::FileUse> use;  // of ownFile, while it is open before a person
  std::string application;
  bool isModified = false;
  bool programIsCurrent = false;  // nobody has marked a change; isProgramCurrent looks for one
  std::string compiledProgram;    // a file's name in the system's folder; empty: none
  std::vector<std::pair<std::string, std::string>> settings;  // by add-in title
  std::int16_t nextId = 1;
  std::int16_t nextHandle = 1;
  std::int16_t controlSystem = 0;
  std::vector<DevicePtr> devices;
  std::vector<DevicePtr> panels;
  std::vector<std::shared_ptr<BillEntryData>> bill;
  std::vector<SensorHandle> sensorHandles;
  std::vector<std::shared_ptr<PresetData>> presets;  // the named ones
  std::string lastError;
  bool isClosed = false;
  std::function<void()> whenSaved;  // nothing: nobody waits for it

  /// Lets other programs see that a person has the document's own file open.
  void showInUse() { use = std::make_shared<base::FileUse>(ownFile, base::FileUse::Kind::shared); }

  void note(const std::string& call) const {
    if (journal) journal->note(call);
  }

  /// The settings text of an add-in takes the place of its former one.
  void putSettings(const std::string& title, const std::string& text);

  /// A device or interface was added, removed, replaced or chosen, a module added, or the control
  /// system changed.
  void markStructureChanged();
  /// A preset, step, property, source or event was changed.
  void markProgramChanged() { programIsCurrent = false; }
  /// A label was changed.
  void markLabelChanged() { isModified = true; }

  /// Devices, modules and panels alike; nothing when absent.
  DevicePtr find(std::int16_t id) const;
  /// Of one kind.
  DevicePtr find(std::int16_t id, DeviceData::Kind kind) const;
  DevicePtr findByHandle(std::int16_t handle) const;
  DevicePtr findByName(DeviceData::Kind kind, const std::string& deviceName,
                       const std::string& parentName) const;
  /// Enters a device, module or panel into the lookup, and takes it out.
  void enter(const DevicePtr& device) { byId_[device->id] = device; }
  void forget(const DevicePtr& device) { byId_.erase(device->id); }

  /// The next id or handle, which no other object of the document has had; 0 when they are used up.
  std::int16_t takeId();
  std::int16_t takeHandle();

  /// A new preset without a name.
  std::shared_ptr<PresetData> makePreset();
  /// Puts a preset with a name at the end; false when the name is taken.
  bool addNamedPreset(const std::shared_ptr<PresetData>& preset);
  std::shared_ptr<PresetData> findPreset(const std::string& presetName) const;
  std::shared_ptr<PresetData> findPreset(std::int32_t id) const;
  /// Takes an unnamed preset and all its branches out of the lookup.
  void forgetPreset(PresetData& preset);

  /// The signal, with a place for its events; nothing when the device has none such.
  std::shared_ptr<SignalData> signal(DeviceData& device, const std::string& output,
                                     const std::string& input, std::int16_t type) const;
  std::shared_ptr<PresetData> eventPreset(SignalData& signal, std::size_t event);

  BillEntryData* findBillEntry(std::int32_t key) const;

  /// Every device, module and panel: each device is followed by its modules, the panels come last.
  std::vector<DevicePtr> everyDevice() const;

  /// "Display Device", or "Display Device/PWRSENSE" for a module; empty for an id that is not
  /// there.
  std::string shownName(std::int16_t id) const;

 private:
  std::unordered_map<std::int16_t, DevicePtr> byId_;
  std::unordered_map<std::string, std::shared_ptr<PresetData>> presetsByName_;
  std::unordered_map<std::int32_t, std::weak_ptr<PresetData>> presetsById_;
  std::int32_t nextPresetId_ = 1;
};

using DocumentPtr = std::shared_ptr<DocumentData>;

}  // namespace trellisar
