#include "app/Reports.h"

#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/PagePrinter.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "host/Error.h"
#include "trellisar/document/SystemFile.h"
#include "trellisar/reports/Report.h"

namespace app {

int writeReports(const ReportsOptions& options) {
  trellisar::DocumentPtr document;
  try {
    document = trellisar::readSystemFile(options.systemFile, nullptr);
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::wrongInput;
  }
  try {
    const auto files = trellisar::writeReports(
        *document, options.out, {.pictures = dataFolder() / "pictures", .date = trellisar::today()},
        reportPrinter(), options.replace);
    for (const auto& file : files) print(file.string() + "\n");
    return exitStatus::ok;
  } catch (const host::Error& error) {
    reportLine(error.description());
    return exitStatus::refused;
  }
}

}  // namespace app
