#include "answers/StepTable.h"

namespace answers {
namespace {

/// The acts of the screen's or the lift's page: where its answers stand, what its device is called
/// in the system, and the place of its controls in their arrays.
std::vector<Act> pageActs(const std::string& answers, const std::string& deviceName,
                          const std::string& index) {
  return {
      tick(answers, "chkInclude" + index),
      chooseDevice(answers + ".device", "cmdChoose" + index, deviceName),
      selectCommand(answers + ".on", "ctlPowerOn" + index),
      enter(answers + ".on_pulse", "txtPulseTimeOn" + index),
      selectCommand(answers + ".off", "ctlPowerOff" + index),
      enter(answers + ".off_pulse", "txtPulseTimeOff" + index),
  };
}

}  // namespace

StepActs displayOptionsActs() {
  std::vector<Act> acts = pageActs("screen", "Screen", "(0)");
  for (Act& act : pageActs("lift", "Lift", "(1)")) acts.push_back(std::move(act));
  return {"Display Options", std::move(acts)};
}

}  // namespace answers
