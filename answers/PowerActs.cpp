#include "answers/StepTable.h"

namespace answers {

StepActs powerActs() {
  return {"Power Control",
          {
              chooseOption("power.control", {{"discrete", "optPower(2)"},
                                             {"sensing", "optPower(1)"},
                                             {"none", "optPower(0)"}}),
              selectCommand("power.on", "ctlCommands(1)"),
              selectCommand("power.off", "ctlCommands(2)"),
              tick("power.second_off", "chkSecondOff"),
              selectCommand("power.second_off.command", "ctlCommands(3)"),
              enter("power.second_off.delay", "txtSecondOff"),
          }};
}

}  // namespace answers
