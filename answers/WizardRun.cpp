#include "answers/WizardRun.h"

#include "answers/Shape.h"
#include "answers/SystemPlace.h"
#include "answers/Table.h"
#include "answers/Wizard.h"
#include "base/Nearest.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"

namespace answers {
namespace {

[[noreturn]] void refuse(const std::string& what) { throw RunEnded(RunEnded::refused, what); }

[[noreturn]] void refuseNotTaken(const Page& page, const Answer& answer) {
  const std::string what = "the step " + base::quoted(page.name()) + " did not take ";
  throw RunEnded(RunEnded::refused, {base::Fault{what + answer.value.dump(), answer.path}});
}

}  // namespace

void WizardRun::drive(forms::Form& window) {
  const Wizard wizard(window, hands_);
  wizard.refuseAnotherSystem();
  while (true) {
    const Page page = wizard.page();
    const Step& step = stepOf(page);
    answer(page, step);
    if (wizard.isAtEnd()) break;
    wizard.next();
    checkHeld(page, step);
  }
  save(window);
  deliver(wizard.page(), delivery_);
  finish(window);
}

void WizardRun::answer(const Page& page, const Step& step) const {
  eachAnswer(step, [&](const Act& act, const Answer& given) {
    act.perform(page, given);
    goOn(hands_);
    if (act.isHeld && !act.isHeld(page, given)) refuseNotTaken(page, given);
  });
  if (step.beforeLeaving) step.beforeLeaving(page);
}

/// A box is read when the focus leaves it, which for the last one of a page is when the step is
/// left.
void WizardRun::checkHeld(const Page& page, const Step& step) const {
  eachAnswer(step, [&](const Act& act, const Answer& given) {
    const bool isShown = !act.isHeld || act.isHeld(page, given);
    const bool isInSystem = !act.isInSystem || act.isInSystem(page, given);
    if (!isShown || !isInSystem) refuseNotTaken(page, given);
  });
}

/// On a new system null is as if the answer was left out: there is nothing that it could untick.
void WizardRun::eachAnswer(const Step& step, const Visit& visit) const {
  for (const Row* row : step.onThePage()) {
    // Elements have their acts for the whole array.
    const std::string path = row->key.substr(0, row->key.find("[]"));
    const base::Json* value = answers_.find(path);
    if (value && (!value->is_null() || !hands_.onto.empty())) visit(row->act, {path, *value});
  }
}

void WizardRun::save(forms::Form& wizard) {
  hands_.desktop.forgetCritical();
  hands_.user.click(wizard.control("cmdSave"));
  hands_.desktop.throwIfEnded();
  const host::Document& document = hands_.document();
  const std::filesystem::path file = systemFileOf(document);
  std::error_code failure;
  if (document.get_Modified() || !std::filesystem::exists(file, failure)) {
    refuse("the system was not saved");
  }
  savedFile_ = file;
  if (hands_.desktop.sawCritical()) {
    refuse("the system was saved, but its program is not complete: " + file.string());
  }
}

void WizardRun::finish(forms::Form& wizard) const {
  hands_.desktop.expectExitQuestion();
  hands_.user.click(wizard.control("cmdFinish"));
  hands_.desktop.throwIfEnded();
  if (wizard.isVisible()) refuse("the system was saved, but the wizard can't be left");
}

}  // namespace answers
