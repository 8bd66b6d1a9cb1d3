#include "generator/Generate.h"

#include <algorithm>
#include <array>

namespace generator {

bool Generate::Build() {
  m_run.ClearErrorItems();
  m_strFailedPart.clear();
  struct Part {
    bool (Generate::*Build)();
    const char* strPurpose;
  };
  // The display state adds the lockout module that the lockout sets up, and the contact closure
  // appends to a power preset that the power programming empties.
  static constexpr std::array order{
      Part{&Generate::BuildKestrum, "the monitoring interface"},
      Part{&Generate::BuildMotionSensor, "the motion detector"},
      Part{&Generate::BuildDisplayDeviceSwitching, "the selection of the display's input"},
      Part{&Generate::BuildDisplayStateProgramming, "the display's warming up and cooling down"},
      Part{&Generate::BuildPowerProgramming, "power on and power off"},
      Part{&Generate::BuildPowerOnOffLockout, "the power lockout"},
      Part{&Generate::BuildSystemLockPresets, "locking and unlocking the room"},
      Part{&Generate::BuildKestrumInputs, "the digital inputs of the monitoring interface"},
      Part{&Generate::BuildOnOffContactClosureControl, "the contact closure"},
      Part{&Generate::BuildAudioControl, "the audio"},
  };
  const auto failed = std::find_if_not(order.begin(), order.end(),
                                       [this](const Part& part) { return (this->*part.Build)(); });
  if (failed == order.end()) return true;
  m_strFailedPart = failed->strPurpose;
  return false;
}

}  // namespace generator
