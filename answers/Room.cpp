#include "answers/Room.h"

#include "answers/Interrupt.h"
#include "answers/RunEnded.h"
#include "answers/WizardRun.h"
#include "base/FileIO.h"
#include "forms/Application.h"
#include "forms/Paths.h"

namespace answers {
namespace {

namespace fs = std::filesystem;

constexpr const char* wizardName = "frmAddIn";

/// A host of its own, and hands that nobody watches.
class Stage {
 public:
  Stage(const RoomOptions& options, const Report& report, MadeFolders& made)
      : desktop_(report),
        application_(desktop_, forms::fromMachinePath(options.dataFolder)),
        host_({.dataFolder = options.dataFolder,
               .library = options.library,
               .replacing =
                   options.replace ? trellisar::Replacing::always : trellisar::Replacing::never,
               .exportFile = options.delivery.archive.value_or("")}),
        user_(application_),
        hands{user_, desktop_, host_, made, options.replace} {
    answerBuildWindows(desktop_, report);
  }

  /// The wizard then opens on it.
  void open(const fs::path& system) {
    const fs::path whole = fs::absolute(system).lexically_normal();
    if (!host_.mainWindow()->FileOpen(forms::fromMachinePath(whole), /*bUseRecovery=*/true)) {
      desktop_.throwIfEnded();
      throw RunEnded(RunEnded::refused, "the system can't be opened: " + system.string());
    }
    hands.onto = whole;
  }

  /// Raises RunEnded where the act on the wizard's window did not come to its end.
  void run(const RoomOptions& options, const std::function<void(forms::Form&)>& act) {
    bool hasRun = false;
    desktop_.answerForms(wizardName, [&](forms::Form& wizard) {
      act(wizard);
      hasRun = true;
    });
    options.openWizard(host_);
    desktop_.throwIfEnded();
    if (!hasRun) throw RunEnded(RunEnded::refused, "the wizard could not be started");
  }

 private:
  UnattendedDesktop desktop_;
  forms::Application application_;
  trellisar::Host host_;
  forms::User user_;

 public:
  Hands hands;
};

}  // namespace

Reading readRoom(const fs::path& system, const RoomOptions& options, const Report& report) {
  MadeFolders made;
  Stage stage(options, report, made);
  stage.open(system);
  Reading reading;
  stage.run(options, [&](forms::Form& window) {
    const Wizard wizard(window, stage.hands);
    wizard.refuseAnotherSystem();
    reading = readAnswers(wizard);
  });
  return reading;
}

fs::path buildRoom(const Answers& answers, const fs::path& onto, const RoomOptions& options,
                   const Report& report, MadeFolders& made) {
  Interrupt::endRunIfRequested();
  const base::FileUse use(onto, base::FileUse::Kind::alone);
  if (!use.isHeld()) {
    throw RunEnded(RunEnded::refused,
                   "the system is open in a window, or another run is at it; it was left as it is");
  }
  Stage stage(options, report, made);
  if (!onto.empty()) stage.open(onto);
  WizardRun run(answers, options.delivery, stage.hands);
  stage.run(options, [&](forms::Form& window) { run.drive(window); });
  return *run.savedFile();
}

}  // namespace answers
