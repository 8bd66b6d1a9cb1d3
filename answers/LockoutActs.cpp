#include "answers/StepTable.h"

namespace answers {

StepActs lockoutActs() {
  return {"Power On/Off Lockout",
          {
              enter("lockout.on", "txtPowerLockoutTime(1)"),
              enter("lockout.off", "txtPowerLockoutTime(2)"),
              chooseOptionBehind("lockout.contact", "unused", "chkContact",
                                 {{"continue", "optContact(1)"}, {"power off", "optContact(0)"}}),
          }};
}

}  // namespace answers
