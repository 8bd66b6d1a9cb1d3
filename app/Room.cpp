#include "app/Room.h"

#include "app/AddIn.h"
#include "app/Environment.h"
#include "app/ErrorWords.h"
#include "app/ExitStatus.h"
#include "app/Interrupt.h"
#include "app/SystemPlace.h"
#include "app/WizardRun.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "trellisar/window/Host.h"

namespace app {
namespace {

/// Runs the wizard and answers the path of the saved system. Raises RunEnded.
std::string runWizard(const Answers& answers, const RoomOptions& options, const RunReport& report,
                      MadeFolders& made) {
  UnattendedDesktop desktop(report);
  forms::Application application(desktop, forms::fromMachinePath(dataFolder()));
  trellisar::Host host(
      {.dataFolder = dataFolder(),
       .library = options.library,
       .replacing = options.replace ? trellisar::Replacing::always : trellisar::Replacing::never,
       .exportFile = options.delivery.archive.value_or("")});
  host.preferences() = readOnlyPreferences();

  forms::User user(application);
  Hands hands{user, desktop, host, made, options.replace};
  WizardRun run(answers, options.delivery, hands);
  answerBuildWindows(desktop, report);
  desktop.answerForms("frmAddIn", [&](forms::Form& wizard) { run.drive(wizard); });
  AddIn(host).runOnNewSystem();
  desktop.throwIfEnded();
  if (!run.savedFile()) throw RunEnded(exitStatus::refused, "the wizard could not be started");
  return run.savedFile()->string();
}

}  // namespace

RoomResult buildRoom(const Answers& answers, const RoomOptions& options, const RunReport& report,
                     MadeFolders& made) {
  try {
    Interrupt::endRunIfRequested();
    return {exitStatus::ok, runWizard(answers, options, report, made)};
  } catch (const RunEnded& ended) {
    for (const Fault& fault : ended.faults()) report.fault(answers.placed(fault));
    return {ended.status(), {}};
  } catch (const std::exception& error) {
    report.line(wordsOf(error));
    return {exitStatus::refused, {}};
  }
}

}  // namespace app
