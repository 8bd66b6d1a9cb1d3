#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "host/BillOfMaterials.h"
#include "host/Device.h"
#include "host/DeviceList.h"
#include "host/Library.h"
#include "host/Program.h"

namespace host {

/// What the document knows about itself. Nothing here marks the document as modified.
class SystemInfo {
 public:
  virtual ~SystemInfo() = default;
  /// The settings text that an add-in keeps under its title; empty when there is none.
  virtual std::string GetAddInAttributes(const std::string& strTitle) const = 0;
  virtual void SetAddInAttributes(const std::string& strTitle, const std::string& strText) = 0;
  virtual std::string get_SystemName() const = 0;  // follows Document::put_Name
  virtual std::int16_t get_MaxNameLength() const = 0;
  /// The word of the application that saved the system last.
  virtual std::string get_LastApplication() const = 0;
  virtual void put_LastApplication(const std::string& strApplication) = 0;
  /// Whether the compiled program matches the document.
  virtual bool get_ProgramIsCurrent() const = 0;
  virtual void put_ProgramIsCurrent(bool bCurrent) = 0;
  virtual std::string get_CompiledProgramFile() const = 0;  // empty: never compiled
  virtual std::int16_t get_ControlSystemID() const = 0;
  virtual std::int32_t get_UploadHandle() const = 0;
};

/// The flags that follow the id in a removal. This host removes everything that names the device in
/// every case and looks at none of them.
struct RemovalFlags {
  bool bFlag2;
  bool bFlag3;
  bool bFlag4;
  bool bFlag5;
  bool bFlag6;
};
inline constexpr RemovalFlags removalOfDevice{true, false, false, false, true};
inline constexpr RemovalFlags removalOfTouchpanel{true, false, true, true, false};

/// The open system.
//
/// Adding, removing, replacing or choosing a device or interface, adding a module and changing the
/// control system mark the document as modified and its program as not current; changing a preset,
/// step, property, source or event marks the program as not current; a changed label marks the
/// document as modified. Writing what is there already marks nothing.
class Document {
 public:
  virtual ~Document() = default;

  virtual std::string get_Name() const = 0;
  virtual void put_Name(const std::string& strName) = 0;
  /// The system's folder, with backslashes, with or without a closing one as it was put.
  virtual std::string get_Path() const = 0;
  virtual void put_Path(const std::string& strPath) = 0;

  virtual bool get_Modified() const = 0;
  /// With bModified the document is modified, and with bProgram also its program not current;
  /// without bModified the document is not modified and nothing else changes. bNotify tells the
  /// host's windows.
  virtual void SetModified(bool bModified, bool bProgram, bool bNotify) = 0;
  /// An answer that the program depends on has changed.
  void MarkChanged() { SetModified(true, true, true); }
  /// Something has changed that the program does not depend on.
  void MarkChangedButProgram() { SetModified(true, false, true); }
  /// Nothing is left to be saved.
  void MarkUnchanged() { SetModified(false, true, true); }

  /// Text of the last operation that answered False.
  virtual std::string GetLastError() const = 0;

  /// Ends the document without a question. All its objects are gone afterwards.
  virtual void Close() = 0;
  /// Writes to strFile, to which ".tsy" is added; the folder must be there. bSaved tells whether it
  /// was written; what hindered it is GetLastError.
  virtual void Save(const std::string& strFile, bool& bSaved) = 0;

  virtual std::shared_ptr<DeviceList> get_Devices() const = 0;
  virtual std::shared_ptr<TouchpanelList> get_Touchpanels() const = 0;
  /// The receiver.
  virtual std::shared_ptr<Device> get_ControlSystem() const = 0;
  virtual std::shared_ptr<SystemInfo> get_SystemInfo() const = 0;
  virtual std::shared_ptr<PresetList> get_Presets() const = 0;
  virtual std::shared_ptr<SignalList> get_Signals() const = 0;
  virtual std::shared_ptr<Reports> get_Reports() const = 0;

  /// A device goes with its modules and with every step, source and slot that names them; a
  /// conditional step that tests it gives way to the steps of its branch. The bill of materials is
  /// left alone. False: GetLastError.
  [[nodiscard]] virtual bool RemoveDevice(std::int16_t iDeviceID, const RemovalFlags& flags) = 0;
  [[nodiscard]] virtual bool RemoveTouchpanel(std::int16_t iDeviceID,
                                              const RemovalFlags& flags) = 0;

  /// What the library offers for a slot. strError is empty when it could be had; else the
  /// definition is empty.
  virtual std::shared_ptr<SlotDefinition> GetSlotDefinition(std::int16_t iSlot,
                                                            std::string& strError) const = 0;

  /// Makes the receiver another model: id, name, handle, children, signals and events stay.
  /// strMessage tells the user what can't stay, or why nothing was changed; empty when there is
  /// nothing to tell.
  virtual void ChangeControlSystem(std::int16_t iModelID, const std::string& strReserved,
                                   std::int16_t iReserved, std::string& strMessage) = 0;

  /// Adds modules below a device and replaces oDevice by the device as it is then. The number of
  /// modules of the list that hang there afterwards, those included that did so already; 0 when
  /// there is none.
  [[nodiscard]] virtual std::int16_t AddModules(const ModuleList& colModules,
                                                std::shared_ptr<Device>& oDevice) = 0;
};

}  // namespace host
