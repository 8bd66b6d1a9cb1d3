#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "addin/ProgramBuilder.h"
#include "generator/Devices.h"
#include "generator/Presets.h"
#include "generator/Run.h"
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
  std::string GetLastError() const override { return m_run.get_LastError(); }
  std::string GetFailedPart() const override { return m_strFailedPart; }
  std::shared_ptr<const addin::ErrorItems> GetErrorItems() const override {
    return m_run.get_ErrorItems();
  }

 private:
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

  Run m_run;
  std::string m_strFailedPart;
};

}  // namespace generator
