#include "trellisar/CompileDialog.h"

#include <utility>

#include "forms/Application.h"
#include "forms/Numbers.h"
#include "host/Error.h"
#include "trellisar/CompiledProgram.h"
#include "trellisar/ProgramCheck.h"

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

}  // namespace

CompileDialog::CompileDialog(DocumentPtr document)
    : HostForm("CompileDialog", "Build Program"), document_(std::move(document)) {
  cmdCancel.setCancel(true);
  cmdCancel.click.connect([this] { hide(); });
  cmdClose.setDefault(true);
  cmdClose.setVisible(false);
  cmdClose.click.connect([this] { hide(); });
  activated.connect([this] {
    if (!std::exchange(started_, true)) work();
  });
  lblState.setCaption(textOfErrors(1000));  // the longest, which gets the room
  layOutAbove({&cmdCancel, &cmdClose}, dialogWidth,
              {forms::rest(lblState), forms::rest(prgProgress, progressHeight),
               forms::item(lblErrors), forms::rest(lstErrors, listHeight)});
  lblState.setCaption("Checking the program of \"" + document_->name + "\"...");
}

bool CompileDialog::run() {
  showModal(nullptr);
  unload();
  return stored_;
}

void CompileDialog::work() {
  const std::vector<std::string> errors = check();
  if (cancelled_) return;
  if (!errors.empty()) return showErrors(errors);
  try {
    compile();
  } catch (const host::Error& error) {
    showErrors({error.description()});
  }
}

std::vector<std::string> CompileDialog::check() {
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

void CompileDialog::showErrors(const std::vector<std::string>& errors) {
  lblState.setCaption(textOfErrors(errors.size()));
  for (const std::string& error : errors) lstErrors.add(error);
  cmdClose.setVisible(true);
  cmdClose.setCancel(true);
  cmdClose.setFocus();
  cmdCancel.setVisible(false);
}

}  // namespace trellisar
