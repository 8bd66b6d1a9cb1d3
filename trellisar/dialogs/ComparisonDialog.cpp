#include "trellisar/dialogs/ComparisonDialog.h"

#include "forms/Application.h"
#include "trellisar/dialogs/HelpTopics.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 11400;
constexpr forms::Twips wordsHeight = 4500;

}  // namespace

ComparisonDialog::ComparisonDialog(const std::string& caption, const std::string& systems,
                                   const std::string& words)
    : HostForm("ComparisonDialog", caption, help::comparison) {
  lblSystems.setCaption(systems);
  txtWords.setText(words);
  cmdCopy.click.connect(
      [this] { forms::Application::current().desktop().copyText(txtWords.text()); });
  cmdSave.setVisible(false);
  cmdSave.click.connect([this] {
    saves_ = true;
    hide();
  });
  cmdClose.setCancel(true);
  cmdClose.setDefault(true);
  cmdClose.click.connect([this] { hide(); });
}

void ComparisonDialog::show() {
  layOut();
  showModal(nullptr);
  unload();
}

void ComparisonDialog::run() { show(); }

bool ComparisonDialog::runBeforeSaving() {
  cmdSave.setVisible(true);
  cmdSave.setDefault(true);
  cmdClose.setDefault(false);
  cmdClose.setCaption("Do &Not Save");
  show();
  return saves_;
}

void ComparisonDialog::layOut() {
  std::vector<forms::Control*> buttons{&cmdCopy};
  if (cmdSave.isVisible()) buttons.push_back(&cmdSave);
  buttons.push_back(&cmdClose);
  layOutAbove(buttons, dialogWidth,
              {forms::rest(lblSystems), forms::names(lblWords, txtWords),
               forms::rest(txtWords, wordsHeight)});
}

void showComparison(const std::filesystem::path& before, const std::filesystem::path& after,
                    const Differences& differences) {
  const std::string words = readableText(differences);
  ComparisonDialog("Compare Systems", "From: " + before.string() + "\r\nTo: " + after.string(),
                   words.empty() ? "No device and no step of the program differs." : words)
      .run();
}

bool confirmChanges(const std::string& system, const Differences& changes) {
  return ComparisonDialog("Changes of \"" + system + "\"",
                          "The program of the system is built. Saving replaces the system by one "
                          "that differs from it, so that the program has to be built anew. What "
                          "is not saved is lost when the wizard is closed.",
                          readableText(changes))
      .runBeforeSaving();
}

}  // namespace trellisar
