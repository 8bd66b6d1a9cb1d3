#include "answers/Room.h"

#include "answers/Interrupt.h"
#include "answers/RunEnded.h"
#include "answers/WizardRun.h"
#include "forms/Application.h"
#include "forms/Paths.h"

namespace answers {

std::filesystem::path buildRoom(const Answers& answers, const RoomOptions& options,
                                const Report& report, MadeFolders& made) {
  Interrupt::endRunIfRequested();
  UnattendedDesktop desktop(report);
  forms::Application application(desktop, forms::fromMachinePath(options.dataFolder));
  trellisar::Host host(
      {.dataFolder = options.dataFolder,
       .library = options.library,
       .replacing = options.replace ? trellisar::Replacing::always : trellisar::Replacing::never,
       .exportFile = options.delivery.archive.value_or("")});

  forms::User user(application);
  Hands hands{user, desktop, host, made, options.replace};
  WizardRun run(answers, options.delivery, hands);
  answerBuildWindows(desktop, report);
  desktop.answerForms("frmAddIn", [&](forms::Form& wizard) { run.drive(wizard); });
  options.openWizard(host);
  desktop.throwIfEnded();
  if (!run.savedFile()) throw RunEnded(RunEnded::refused, "the wizard could not be started");
  return *run.savedFile();
}

}  // namespace answers
