#include "trellisar/dialogs/RecoveryDialog.h"

#include "trellisar/dialogs/HelpTopics.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 6900;
constexpr forms::Twips betweenTexts = 90;

}  // namespace

RecoveryDialog::RecoveryDialog(const Words& words)
    : HostForm("RecoveryDialog", "Unsaved System", help::unsavedSystem) {
  lblWhat.setCaption(words.what);
  lblWhere.setCaption(words.where);
  cmdRestore.setDefault(true);
  cmdRestore.click.connect([this] { choose(Choice::restore); });
  cmdDiscard.click.connect([this] { choose(Choice::discard); });
  cmdLater.setCancel(true);
  cmdLater.click.connect([this] { choose(Choice::later); });
  activated.connect([this] { cmdRestore.setFocus(); });
  layOutAbove({&cmdRestore, &cmdDiscard, &cmdLater}, dialogWidth,
              {forms::rest(lblWhat), forms::gap(betweenTexts), forms::rest(lblWhere),
               forms::gap(betweenTexts), forms::rest(lblChoice)});
}

RecoveryDialog::Choice RecoveryDialog::run() {
  showModal(nullptr);
  unload();
  return choice_;
}

void RecoveryDialog::choose(Choice choice) {
  choice_ = choice;
  hide();
}

}  // namespace trellisar
