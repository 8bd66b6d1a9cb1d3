#include "answers/StepTable.h"

namespace answers {

StepActs displayActs() {
  return {"Display Device",
          {
              chooseDevice("display.device", "cmdChoose", "Display Device"),
              selectCommand("display.rgb", "ctlCommands(0)"),
              selectCommand("display.composite", "ctlCommands(1)"),
              include("display.relay", "chkPowerRelay", "Power Relay"),
              enter("display.relay.on_delay", "txtDelay(0)"),
              enter("display.relay.off_delay", "txtDelay(1)"),
          }};
}

}  // namespace answers
