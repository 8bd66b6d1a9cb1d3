#pragma once

#include <memory>

#include "trellisar/reports/ReportPrinter.h"

namespace app {

/// What puts the host's reports on paper; nothing in a program without a window.
trellisar::ReportPrinter* reportPrinter();

/// One for a run that shows nothing; nothing in a program without a window.
std::unique_ptr<trellisar::ReportPrinter> offscreenReportPrinter();

}  // namespace app
