#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "addin/ProgramBuilder.h"
#include "generator/Steps.h"
#include "host/Document.h"

namespace generator {

struct LockNames;

/// Turns the answers of the wizard into the room's control program: it reads the settings of the
/// add-in and writes presets, signals and properties of the open document. What it writes it
/// empties first, so that a run can be repeated; it never creates a named preset.
///
/// One object for each run. An operation answers whether it succeeded; a failure may leave its text
/// in GetLastError, where it stays for the rest of the run. Steps of a preset count from 1. Power
/// operations take one of addin::enumPowerDiscrete.
class Generate : public addin::ProgramBuilder {
 public:
  /// Runs the sub-builders in their order; the first that fails ends the run.
  [[nodiscard]] bool Build() override;
  std::string GetLastError() const override { return m_strLastError; }
  std::string GetFailedPart() const override { return m_strFailedPart; }
  std::shared_ptr<const addin::ErrorItems> GetErrorItems() const override {
    return m_colErrorItems;
  }

 private:
  using PresetPtr = std::shared_ptr<host::Preset>;
  using DevicePtr = std::shared_ptr<host::Device>;
  using SignalPtr = std::shared_ptr<host::Signal>;

  /// Writes the steps of a branch; its answer is that of the operation which made the branch.
  using BranchWriter = std::function<bool(const PresetPtr& branch)>;

  // Warnings, and the five texts of a failure, each of which answers False: Generate.cpp.
  void ClearErrorItems();
  void AddErrorItem(const std::string& sMessage, std::int16_t iSeverity);
  bool Fail(const std::string& sText);
  bool CannotFindSequence(const std::string& sPreset);
  bool CannotFindPreset(const std::string& sPreset);
  bool CannotFindCommand(const std::string& sCommand, const host::Device& device);
  bool FailedToFind(const std::string& sProperty);
  bool FailedToSetProperty(const std::string& sProperty, const std::string& sValue);
  /// A property that is not there, or that refuses the value, is a failure with a text.
  [[nodiscard]] bool SetProperty(const host::Device& device, const std::string& sProperty,
                                 const std::string& sValue);

  // The toolbox, presets: ToolboxPresets.cpp. What is looked up is nothing when absent.
  static PresetPtr FindPreset(const std::string& sName);
  /// A preset that steps are to go into: its absence is a failure with a text.
  PresetPtr FindSequence(const std::string& sName);
  [[nodiscard]] static bool AddStep(host::Preset& preset, std::int16_t iIndex, const NewStep& step);
  /// A step at the end, whose result is not looked at.
  static void AppendStep(host::Preset& preset, const NewStep& step);
  /// Enables or disables every panel without a project of its own, at the end. False without a
  /// preset.
  [[nodiscard]] static bool AddInterfaceEnableSteps(bool bDisable, const PresetPtr& preset);
  static std::shared_ptr<host::Step> MakeConditionStep(const host::StepCondition& test);
  [[nodiscard]] static bool InsertBranch(host::Preset& preset, std::int16_t iIndex,
                                         const host::StepCondition& test,
                                         const BranchWriter& writeBranch);
  [[nodiscard]] static bool AppendBranch(host::Preset& preset, const host::StepCondition& test,
                                         const BranchWriter& writeBranch);

  // The toolbox, events of signals: ToolboxEvents.cpp. Events are those of host::enumSignalEvent.
  static SignalPtr FindOutput(std::int16_t iDeviceID, const std::string& sOutputName);
  /// For a signal that its device is bound to have: raises host::Error when it was not found.
  static host::Signal& Existing(const SignalPtr& signal, const std::string& sName);
  static void FeedFrom(host::Signal& signal, std::int16_t iDeviceID,
                       const std::string& sSignalName);
  static PresetPtr EventPreset(const host::Signal& signal, std::int16_t iEvent);
  static void EnableEvents(const host::Signal& signal);
  static void ClearEvents(const host::Signal& signal);
  /// Makes a command all that the event does. False with nothing changed for a command without a
  /// name, and with the event left empty when the device or its command is not there.
  [[nodiscard]] bool AddCommandToEvent(const host::Signal& signal, std::int16_t iEvent,
                                       const NewStep& command);
  /// Puts the call of a preset in front of what the event does; with bClear it is all that the
  /// event does.
  [[nodiscard]] static bool AddPresetCallToEvent(const host::Signal& signal, std::int16_t iEvent,
                                                 const std::string& sPreset, bool bClear);
  /// As AddPresetCallToEvent, for a digital output, which becomes event driven.
  [[nodiscard]] static bool ConnectEventToGlobalPreset(std::int16_t iDeviceID,
                                                       const std::string& sOutputName,
                                                       std::int16_t iEvent,
                                                       const std::string& sPreset, bool bClear);

  // The toolbox, commands of the drivers: ToolboxCommands.cpp. Empty: there is no such device or
  // command.
  static std::string GetDeviceCommandName(std::int16_t iDeviceID, std::int16_t iStandardCommand);
  static std::string GetSourceCommandName(std::int16_t iStandardCommand);
  static std::string GetAuxiliaryCommandName(std::int16_t iDeviceID, std::int16_t ePowerOnOrOff);

  // The four power presets: PowerProgramming.cpp.
  [[nodiscard]] bool BuildPowerProgramming();
  [[nodiscard]] bool ClearPowerPreset(std::int16_t ePowerOnOrOff);
  [[nodiscard]] bool BuildLinkSystemToDisplayPower(std::int16_t ePowerOnOrOff);
  [[nodiscard]] bool BuildAuxiliaryDevicePower(std::int16_t ePowerOnOrOff);
  [[nodiscard]] bool AddAuxiliaryPulseStep(std::int16_t iAuxiliaryDevice,
                                           std::int16_t ePowerOnOrOff);
  [[nodiscard]] bool BuildReceiverPowerEvents();
  [[nodiscard]] bool BuildReceiverPowerOff();
  [[nodiscard]] bool AddReceiverPowerStep(std::int16_t ePowerOnOrOff);
  [[nodiscard]] bool BuildKestrumPowerFeedback();
  [[nodiscard]] bool AddKestrumPowerFeedbackStep(std::int16_t ePowerOnOrOff);

  // The display's own power: DisplayPower.cpp.
  [[nodiscard]] bool BuildDisplayPowerPresets();
  [[nodiscard]] bool BuildDisplayPowerControl(std::int16_t ePowerOnOrOff);
  [[nodiscard]] bool AddDiscretePowerSteps(std::int16_t ePowerOnOrOff, std::int16_t iDeviceID);
  void WarnOfMissingPowerCommand(std::int16_t ePowerOnOrOff, std::int16_t iDeviceID);
  static void AppendRelayCloseSteps(host::Preset& preset);
  static void AppendRelayOpenSteps(host::Preset& preset);
  static void AppendSecondPowerOffSteps(host::Preset& preset);

  // The display's power with a power sensor: PowerSensing.cpp.
  [[nodiscard]] bool BuildSensedPower(std::int16_t ePowerOnOrOff, DevicePtr display,
                                      host::BillOfMaterialsEntry* bill);
  [[nodiscard]] bool AddSensedPowerSteps(std::int16_t ePowerOnOrOff, std::int16_t iModuleID);
  /// The id of the module, 0 on failure; the library is asked only for one that the device does not
  /// have yet. Replaces `device` by the device as it is with the module.
  [[nodiscard]] std::int16_t AddPowerSensingModule(DevicePtr& device);
  std::int16_t GetPowerSensorHandle();

  // What the display shows: DisplaySwitching.cpp.
  [[nodiscard]] bool BuildDisplayDeviceSwitching();
  [[nodiscard]] bool BuildDisplayDeviceSwitchingCommand(std::int16_t iStandardCommand);
  /// The display shows again what is selected, of both sources.
  [[nodiscard]] static bool BuildPowerOnSwitching(const PresetPtr& preset);
  /// Without a command there is nothing to write, which is a success.
  [[nodiscard]] static bool BuildPowerOnSwitchingCommand(const PresetPtr& preset,
                                                         const std::string& sCommand,
                                                         const std::string& sFeedbackSignal);

  // While the display warms up and cools down: DisplayState.cpp.
  [[nodiscard]] bool BuildDisplayStateProgramming();
  [[nodiscard]] bool BuildWarmingUp(std::int16_t iModuleID);
  [[nodiscard]] bool BuildCoolingDown(std::int16_t iModuleID);
  [[nodiscard]] bool ReportDisplayState(const host::Signal& signal, const char* sHigh,
                                        const char* sLow);
  static void AppendUnlockSteps(const PresetPtr& preset);

  // The lockout module: Lockout.cpp.
  [[nodiscard]] bool BuildPowerOnOffLockout();
  static bool NeedsLockout(const host::Device& display);
  /// The module, nothing when it can't be had. Replaces `display` by the device as it is with the
  /// module.
  static DevicePtr GetPowerLockoutModule(DevicePtr& display);
  /// The display has no lockout module, and the library none to give it.
  bool FailedToAddLockoutModule();
  [[nodiscard]] bool SetPowerLockoutTimes(const host::Device& module);
  /// A command of the sensing module, or none: then it is the display's own.
  [[nodiscard]] static bool SetPowerLockoutCommands(const host::Device& module,
                                                    const std::string& sOnCommand,
                                                    const std::string& sOffCommand);

  // The contact on digital input 2: ContactClosure.cpp.
  [[nodiscard]] bool BuildOnOffContactClosureControl();
  [[nodiscard]] bool BuildContactOpened(const host::Signal& contact);
  [[nodiscard]] bool BuildLockAtStart();
  [[nodiscard]] bool AddSystemLockToPreset(const std::string& sPreset, bool bAtStart);
  [[nodiscard]] bool InsertSystemLockBranch(host::Preset& preset, std::int16_t iIndex,
                                            const host::StepCondition& test);

  // Locking and unlocking the room: SystemLock.cpp.
  [[nodiscard]] bool BuildSystemLockPresets();
  [[nodiscard]] bool BuildSystemLock();
  [[nodiscard]] bool BuildSystemUnlock();
  [[nodiscard]] bool BuildLockPreset(const LockNames& names);

  // The motion detector: MotionSensor.cpp.
  [[nodiscard]] bool BuildMotionSensor();
  [[nodiscard]] static bool BuildNoMotionTimeout(std::int16_t iSensorID);

  // The receiver's audio: AudioControl.cpp.
  [[nodiscard]] bool BuildAudioControl();
  [[nodiscard]] bool BuildMuteOnContact();

  // The monitoring interface: Kestrum.cpp and KestrumInputs.cpp.
  [[nodiscard]] bool BuildKestrum();
  [[nodiscard]] bool BuildKestrumOccupancy();
  bool BuildKestrumErrors();
  static bool SetKestrumOrlenaError(std::int16_t iDeviceID, const std::string& sOutput,
                                    const std::string& sDetected, const std::string& sCorrected);
  bool BuildKestrumLampHours();
  [[nodiscard]] static bool BuildKestrumPresetTriggers();
  [[nodiscard]] bool BuildKestrumInputs();
  [[nodiscard]] static bool BuildKestrumDigitalInputs(std::int16_t iInput);

  std::string m_strLastError;
  std::shared_ptr<addin::ErrorItems> m_colErrorItems = std::make_shared<addin::ErrorItems>();
  std::string m_strFailedPart;
  std::int16_t m_iSensorHandle = 0;  // 0 until it is first asked for
};

}  // namespace generator
