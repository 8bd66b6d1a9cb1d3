#include "answers/StepTable.h"

namespace answers {

StepActs roomActs() {
  return {"Room Options",
          {
              include("room.kestrum", "chkInclude(0)", "Kestrum Interface"),
              include("room.fenlet", "chkInclude(1)", "Fenlet"),
              enterBehind("room.fenlet_password", "chkEnablePwd", "txtFenletPassword"),
              include("room.occupancy", "chkOccupancy", "Motion Detector"),
              enterBehind("room.power_off_after", "chkPowerTimeout", "txtPowerOffTimeout"),
          }};
}

}  // namespace answers
