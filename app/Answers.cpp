#include "app/Answers.h"

#include "answers/ErrorWords.h"
#include "answers/LeftOver.h"
#include "answers/Room.h"
#include "answers/RunEnded.h"
#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ExitStatus.h"
#include "app/RunReport.h"
#include "app/StandardStreams.h"
#include "base/Json.h"

namespace app {
namespace {

void tellLeftOver(const std::filesystem::path& system, const base::Json& answers,
                  const answers::RoomOptions& options, const RunReport& report) {
  try {
    for (const std::string& words : answers::leftOver(system, answers, options)) {
      report.line("no answers build this: " + words);
    }
  } catch (const answers::RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) {
      report.line("these answers build nothing: " + fault.text());
    }
  }
}

}  // namespace

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
    tellLeftOver(options.systemFile, reading.answers, roomOptions, report);
    return exitStatus::ok;
  } catch (const answers::RunEnded& ended) {
    for (const base::Fault& fault : ended.faults()) report.fault(fault);
  } catch (const std::exception& error) {
    report.line(answers::wordsOf(error));
  }
  return exitStatus::wrongInput;
}

}  // namespace app
