#pragma once

#include <filesystem>
#include <vector>

#include "trellisar/DocumentData.h"
#include "trellisar/ReportPrinter.h"

namespace app {

/// What puts the host's reports on paper; nothing in a program without a window.
trellisar::ReportPrinter* reportPrinter();

/// Writes all reports of a system as PDF into a folder, and answers their files; none in a program
/// without a window. Raises host::Error.
std::vector<std::filesystem::path> writePdfReports(const trellisar::DocumentData& document,
                                                   const std::filesystem::path& folder);

}  // namespace app
