#pragma once

#include "trellisar/reports/ReportPrinter.h"

namespace app {

/// What puts the host's reports on paper; null where the windows are not installed. Raises what
/// `frontEnd` raises.
trellisar::ReportPrinter* reportPrinter();

}  // namespace app
