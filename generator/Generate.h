#pragma once

#include <memory>
#include <string>

#include "addin/ProgramBuilder.h"
#include "generator/Run.h"

namespace generator {

/// Turns the answers of the wizard into the room's control program: it reads the settings of the
/// add-in and writes presets, signals and properties of the open document. What it writes it
/// empties first, so that a run can be repeated; it never creates a named preset.
///
/// One object for each run. An operation answers whether it succeeded; a failure may leave its text
/// in GetLastError, where it stays for the rest of the run.
class Generate : public addin::ProgramBuilder {
 public:
  /// Runs the ten parts in their order; the first that fails ends the run.
  [[nodiscard]] bool Build() override;
  std::string GetLastError() const override { return m_run.get_LastError(); }
  std::string GetFailedPart() const override { return m_strFailedPart; }
  std::shared_ptr<const addin::ErrorItems> GetErrorItems() const override {
    return m_run.get_ErrorItems();
  }

 private:
  // The program, part by part: on the left what happens or is called, on the right what runs then.
  // A part has nothing to do where the answers don't call for it. The file of each shows the steps.

  // 1. The monitoring interface: Kestrum.cpp
  //
  //    motion, no motion      tell Kestrum whether the room is occupied
  //    errors of the inputs   tell Kestrum
  //    lamp hours             feed Kestrum
  //    Kestrum's triggers     call System Power Off, Display Power On, Display Power Off,
  //                           System Lock, System Unlock
  [[nodiscard]] bool BuildKestrum();

  // 2. The motion detector: MotionSensor.cpp
  //
  //    no motion              call System Power Off
  [[nodiscard]] bool BuildMotionSensor();

  // 3. What the display shows: DisplaySwitching.cpp
  //
  //    a source is selected   log it with Kestrum; the display's command for it
  [[nodiscard]] bool BuildDisplayDeviceSwitching();

  // 4. While the display warms up and cools down: DisplayState.cpp
  //
  //    warm-up starts         tell Kestrum; disable the panels
  //    warm-up ends           tell Kestrum; the selected source; enable the panels
  //    cool-down starts       tell Kestrum; lock the receiver; disable the panels
  //    cool-down ends         tell Kestrum; unlock and enable them, but where the room is locked
  [[nodiscard]] bool BuildDisplayStateProgramming();

  // 5. The four power presets: PowerProgramming.cpp, DisplayPower.cpp, PowerSensing.cpp
  //
  //    receiver goes on       call System Power On
  //    receiver goes off      call System Power Off
  //    System Power On        call Display Power On; screen and lift down; tell Kestrum
  //    System Power Off       call Display Power Off; screen and lift up; receiver off; tell
  //    Kestrum Display Power On       relay closes; display on; the selected source Display Power
  //    Off      display off; relay opens; display off again
  [[nodiscard]] bool BuildPowerProgramming();

  // 6. The lockout module below the display: Lockout.cpp
  //
  //    PWRTIMEOUT             its times, and the commands that it sends
  [[nodiscard]] bool BuildPowerOnOffLockout();

  // 7. Locking and unlocking the room: SystemLock.cpp
  //
  //    System Lock            lock the receiver; disable the panels; tell Kestrum
  //    System Unlock          unlock the receiver; enable the panels; tell Kestrum
  [[nodiscard]] bool BuildSystemLockPresets();

  // 8. What the monitoring interface sees of the digital inputs: KestrumInputs.cpp
  //
  //    digital inputs 1 to 4  feed Kestrum
  [[nodiscard]] bool BuildKestrumInputs();

  // 9. The contact on digital input 2: ContactClosure.cpp
  //
  //    it closes              call System Unlock
  //    it opens               call System Lock, at once or only in a room that is off
  //    System Power Off       at its end: call System Lock while the contact is open
  //    receiver has started   call System Lock while the contact is open
  [[nodiscard]] bool BuildOnOffContactClosureControl();

  // 10. The receiver's audio: AudioControl.cpp
  //
  //    the receiver           how the volume knob and the microphone work
  //    digital input 3        closes: mute; opens: no longer
  [[nodiscard]] bool BuildAudioControl();

  Run m_run;
  std::string m_strFailedPart;
};

}  // namespace generator
