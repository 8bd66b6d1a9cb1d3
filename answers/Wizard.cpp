#include "answers/Wizard.h"

#include <algorithm>

#include "answers/Interrupt.h"
#include "answers/Shape.h"
#include "answers/SystemPlace.h"
#include "answers/Table.h"
#include "base/FileIO.h"
#include "base/Nearest.h"
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

}  // namespace

void Wizard::refuseAnotherSystem() const {
  if (hands_.onto.empty()) return;
  if (base::isSameFile(systemFileOf(hands_.document()), hands_.onto)) return;
  throw RunEnded(RunEnded::refused, "it is not a system of this wizard, and was left as it is");
}

Page Wizard::page() const {
  const std::int16_t number = strip(window_).currentPage();
  auto& step = tabs(window_).control("ctl" + std::to_string(number));
  return {hands_, dynamic_cast<forms::UserControl&>(step), strip(window_).pageCaption(number)};
}

bool Wizard::isAtEnd() const { return !window_.control("cmdNext").isUsable(); }

void Wizard::next() const {
  const std::int16_t before = strip(window_).currentPage();
  hands_.user.click(window_.control("cmdNext"));
  goOn(hands_);
  if (strip(window_).currentPage() != before + 1) {
    const std::string step = base::quoted(strip(window_).pageCaption(before));
    throw RunEnded(RunEnded::refused, "the step " + step + " can't be left");
  }
}

const Step& stepOf(const Page& page) {
  static const Step nothing;
  const std::vector<Step>& steps = table();
  const auto found = std::find_if(steps.begin(), steps.end(),
                                  [&](const Step& step) { return step.name == page.name(); });
  return found == steps.end() ? nothing : *found;
}

void goOn(const Hands& hands) {
  hands.desktop.throwIfEnded();
  Interrupt::endRunIfRequested();
}

}  // namespace answers
