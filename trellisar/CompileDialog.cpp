#include "trellisar/CompileDialog.h"

#include <utility>

#include "forms/Application.h"
#include "forms/Numbers.h"
#include "host/Error.h"
#include "trellisar/CompiledProgram.h"
#include "trellisar/ProgramCheck.h"

namespace trellisar {
namespace {

constexpr forms::Twips dialogWidth = 7800;
constexpr forms::Twips progressHeight = 300;
constexpr forms::Twips listHeight = 2400;

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
  lblState.setCaption("Checking the program of \"" + document_->name + "\"...");
  layOutAbove({&cmdCancel, &cmdClose}, dialogWidth,
              {forms::rest(lblState), forms::rest(prgProgress, progressHeight),
               forms::item(lblErrors), forms::rest(lstErrors, listHeight)});
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
  lblState.setCaption(errors.size() == 1
                          ? "The program could not be built because of an error. Correct it and "
                            "build the system again."
                          : "The program could not be built because of " +
                                std::to_string(errors.size()) +
                                " errors. Correct them and build the system again.");
  for (const std::string& error : errors) lstErrors.add(error);
  cmdClose.setVisible(true);
  cmdClose.setCancel(true);
  cmdClose.setFocus();
  cmdCancel.setVisible(false);
}

}  // namespace trellisar
