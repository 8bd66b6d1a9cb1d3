#include "answers/WizardRun.h"

#include <algorithm>

#include "answers/Interrupt.h"
#include "answers/Shape.h"
#include "answers/SystemPlace.h"
#include "answers/Table.h"
#include "forms/CommandButton.h"
#include "forms/Form.h"
#include "forms/TabStrip.h"
#include "forms/UserControl.h"

namespace answers {
namespace {

forms::Root& tabs(forms::Form& wizard) {
  return dynamic_cast<forms::UserControl&>(wizard.control("ctlTabs"));
}

forms::TabStrip& strip(forms::Form& wizard) {
  return dynamic_cast<forms::TabStrip&>(tabs(wizard).control("tabControl"));
}

/// What a step asks for; a step that is not in the table asks for nothing.
const Step& stepOf(const Page& page) {
  static const Step nothing;
  const std::vector<Step>& steps = table();
  const auto found = std::find_if(steps.begin(), steps.end(),
                                  [&](const Step& step) { return step.name == page.name(); });
  return found == steps.end() ? nothing : *found;
}

[[noreturn]] void refuse(const std::string& what) { throw RunEnded(RunEnded::refused, what); }

[[noreturn]] void refuseNotTaken(const Page& page, const Answer& answer) {
  const std::string what = "the step " + quoted(page.name()) + " did not take ";
  throw RunEnded(RunEnded::refused, {base::Fault{what + answer.value.dump(), answer.path}});
}

}  // namespace

void WizardRun::drive(forms::Form& wizard) {
  while (true) {
    const Page page = currentPage(wizard);
    const Step& step = stepOf(page);
    answer(page, step);
    if (!wizard.control("cmdNext").isUsable()) break;
    next(wizard);
    checkHeld(page, step);
  }
  save(wizard);
  deliver(currentPage(wizard), delivery_);
  finish(wizard);
}

Page WizardRun::currentPage(forms::Form& wizard) const {
  const std::int16_t number = strip(wizard).currentPage();
  auto& step = tabs(wizard).control("ctl" + std::to_string(number));
  return {hands_, dynamic_cast<forms::UserControl&>(step), strip(wizard).pageCaption(number)};
}

void WizardRun::answer(const Page& page, const Step& step) const {
  eachAnswer(step, [&](const Act& act, const Answer& given) {
    act.perform(page, given);
    goOn();
    if (!act.isHeld(page, given)) refuseNotTaken(page, given);
  });
  if (step.beforeLeaving) step.beforeLeaving(page);
}

void WizardRun::next(forms::Form& wizard) const {
  const std::int16_t before = strip(wizard).currentPage();
  hands_.user.click(wizard.control("cmdNext"));
  goOn();
  if (strip(wizard).currentPage() != before + 1) {
    refuse("the step " + quoted(strip(wizard).pageCaption(before)) + " can't be left");
  }
}

/// A box is read when the focus leaves it, which for the last one of a page is when the step is
/// left.
void WizardRun::checkHeld(const Page& page, const Step& step) const {
  eachAnswer(step, [&](const Act& act, const Answer& given) {
    const bool isInSystem = !act.isInSystem || act.isInSystem(page, given);
    if (!act.isHeld(page, given) || !isInSystem) refuseNotTaken(page, given);
  });
}

/// On a new system null is as if the answer was left out: there is nothing that it could untick.
void WizardRun::eachAnswer(const Step& step, const Visit& visit) const {
  for (const Row* row : step.onThePage()) {
    // Elements have their acts for the whole array.
    const std::string path = row->key.substr(0, row->key.find("[]"));
    const base::Json* value = answers_.find(path);
    if (value && !value->is_null()) visit(row->act, {path, *value});
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

void WizardRun::goOn() const {
  hands_.desktop.throwIfEnded();
  Interrupt::endRunIfRequested();
}

}  // namespace answers
