#include "app/Answers.h"

#include "answers/ErrorWords.h"
#include "answers/Room.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Json.h"

namespace app {

int printAnswers(const AnswersOptions& options) {
  const RunReport report(options.systemFile.string());
  try {
    const answers::RoomOptions roomOptions{.dataFolder = dataFolder(),
                                           .openWizard = openUnattended,
                                           .library = std::make_shared<trellisar::DeviceLibrary>(
                                               options.library.value_or(dataFolder() / "library"))};
    const answers::Reading reading = answers::readRoom(options.systemFile, roomOptions, report);
    for (const base::Fault& fault : reading.unsayable) report.fault(fault);
    print(base::jsonText(reading.answers));
    return exitStatus::ok;
  } catch (const answers::RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) report.fault(fault);
  } catch (const std::exception& error) {
    report.line(answers::wordsOf(error));
  }
  return exitStatus::wrongInput;
}

}  // namespace app
