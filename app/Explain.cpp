#include "app/Explain.h"

#include "answers/ErrorWords.h"
#include "answers/Explanation.h"
#include "answers/Interrupt.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "trellisar/document/SystemFile.h"

namespace app {

int explain(const ExplainOptions& options) {
  const RunReport report(options.systemFile.string());
  // The rooms that are built for it leave nothing behind.
  const answers::Interrupt interrupt;
  try {
    const trellisar::DocumentPtr system = trellisar::readSystemFile(options.systemFile, nullptr);
    const answers::RoomOptions roomOptions{.dataFolder = dataFolder(),
                                           .openWizard = openUnattended,
                                           .library = std::make_shared<trellisar::DeviceLibrary>(
                                               options.library.value_or(dataFolder() / "library"))};
    const answers::Reading reading = answers::readRoom(options.systemFile, roomOptions, report);
    const trellisar::Reasons reasons = answers::explain(*system, reading.answers, roomOptions);
    print(options.asJson ? base::jsonText(trellisar::explainedListing(*system, reasons))
                         : trellisar::explainedText(*system, reasons));
    return exitStatus::ok;
  } catch (const answers::RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) report.fault(fault);
  } catch (const std::exception& error) {
    report.line(answers::wordsOf(error));
  }
  return exitStatus::wrongInput;
}

}  // namespace app
