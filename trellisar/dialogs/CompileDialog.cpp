#include "trellisar/dialogs/CompileDialog.h"

#include <utility>

#include "forms/Application.h"
#include "forms/Numbers.h"
#include "host/Error.h"
#include "trellisar/compile/CompiledProgram.h"
#include "trellisar/compile/ProgramCheck.h"
#include "trellisar/dialogs/HelpTopics.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 8700;
constexpr forms::Twips progressHeight = 300;
constexpr forms::Twips listHeight = 2400;

std::string textOfErrors(std::size_t count) {
  if (count == 1) {
    return "The program could not be built because of an error. Correct it and build the system "
           "again.";
  }
  return "The program could not be built because of " + std::to_string(count) +
         " errors. Correct them and build the system again.";
}

std::string mendedOn(const std::string& page) {
  return "It is mended on the page \"" + page + "\".";
}

}  // namespace

CompileDialog::CompileDialog(DocumentPtr document, host::ProgramGuide* guide)
    : HostForm("CompileDialog", "Build Program", help::buildProgram),
      document_(std::move(document)),
      guide_(guide) {
  prgProgress.nameBy(lblState);
  cmdCancel.setCancel(true);
  cmdCancel.click.connect([this] { hide(); });
  cmdClose.setDefault(true);
  cmdClose.setVisible(false);
  cmdClose.click.connect([this] { hide(); });
  cmdGoTo.setVisible(false);
  cmdGoTo.click.connect([this] { goToPage(); });
  cmdCopy.setVisible(false);
  cmdCopy.click.connect([this] { copyErrors(); });
  lstErrors.click.connect([this] { errorSelected(); });
  lstErrors.doubleClick.connect([this] { goToPage(); });
  activated.connect([this] {
    if (!std::exchange(started_, true)) work();
  });
  lblState.setCaption(textOfErrors(1000));  // the longest, which gets the room
  layOutAbove({&cmdGoTo, &cmdCopy, &cmdCancel, &cmdClose}, dialogWidth,
              {forms::rest(lblState), forms::rest(prgProgress, progressHeight),
               forms::names(lblErrors, lstErrors), forms::rest(lstErrors, listHeight),
               forms::rest(lblPage)});
  lblState.setCaption("Checking the program of \"" + document_->name + "\"...");
}

bool CompileDialog::run() {
  showModal(nullptr);
  unload();
  return stored_;
}

void CompileDialog::work() {
  std::vector<ProgramError> errors = check();
  if (cancelled_) return;
  if (!errors.empty()) return showErrors(std::move(errors));
  try {
    compile();
  } catch (const host::Error& error) {
    showErrors({{error.description(), {}}});
  }
}

std::vector<ProgramError> CompileDialog::check() {
  ProgramCheck check(*document_);
  // One more for the compiling and one for the storing.
  prgProgress.setMaximum(forms::toInt32(static_cast<double>(check.parts() + 2)));
  while (check.next() && advance()) {
  }
  return check.errors();
}

/// Shows that one part more is done and lets the user cancel; false when that was done.
bool CompileDialog::advance() {
  prgProgress.setValue(prgProgress.value() + 1);
  forms::Application::current().processEvents();
  cancelled_ = !isVisible();
  return !cancelled_;
}

void CompileDialog::compile() {
  lblState.setCaption("Compiling...");
  const std::string program = compileProgram(*document_);
  if (!advance()) return;
  storeCompiledProgram(*document_, program);
  stored_ = true;
  prgProgress.setValue(prgProgress.maximum());
  hide();
}

void CompileDialog::showErrors(std::vector<ProgramError> errors) {
  errors_ = std::move(errors);
  lblState.setCaption(textOfErrors(errors_.size()));
  for (const ProgramError& error : errors_) {
    const std::string page = pageOf(error);
    lstErrors.add(page.empty() ? error.text : error.text + " " + mendedOn(page));
  }
  lstErrors.setSelected(0);
  cmdCopy.setVisible(true);
  cmdClose.setVisible(true);
  cmdClose.setCancel(true);
  lstErrors.setFocus();
  cmdCancel.setVisible(false);
}

std::string CompileDialog::pageOf(const ProgramError& error) const {
  return guide_ ? guide_->PageOf(error.place) : std::string();
}

void CompileDialog::errorSelected() {
  const std::int32_t place = lstErrors.selected();
  const std::string page =
      place < 0 ? std::string() : pageOf(errors_[static_cast<std::size_t>(place)]);
  lblPage.setCaption(page.empty() ? "" : mendedOn(page));  // the list may have it out of sight
  cmdGoTo.setVisible(!page.empty());
}

void CompileDialog::goToPage() {
  if (!cmdGoTo.isVisible()) return;
  guide_->ShowPageOf(errors_[static_cast<std::size_t>(lstErrors.selected())].place);
  hide();
}

void CompileDialog::copyErrors() const {
  std::string text;
  for (std::int32_t place = 0; place < lstErrors.count(); ++place) {
    text += lstErrors.text(place) + "\n";
  }
  forms::Application::current().desktop().copyText(text);
}

}  // namespace trellisar
