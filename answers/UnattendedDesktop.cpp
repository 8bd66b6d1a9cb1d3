#include "answers/UnattendedDesktop.h"

#include <utility>

#include "answers/ErrorWords.h"
#include "answers/Interrupt.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/Guard.h"
#include "forms/User.h"

namespace answers {
namespace {

/// The host's long work.
bool canBeCancelled(const forms::Form& form) {
  return form.name() == "CompileDialog" || form.name() == "TransferDialog" ||
         form.name() == "PasswordDialog";
}

}  // namespace

void UnattendedDesktop::end(const RunEnded& reason) {
  if (!ended_) ended_ = reason;
}

void UnattendedDesktop::throwIfEnded() const {
  if (ended_) throw RunEnded(*ended_);
}

void UnattendedDesktop::runModal(forms::Form& form, forms::Form*) {
  form.activateNow();
  if (form.isVisible()) answer(form);
  if (form.isVisible()) form.hide();
}

void UnattendedDesktop::processEvents() {
  HeadlessDesktop::processEvents();
  forms::Application& application = forms::Application::current();
  forms::Form* form = Interrupt::requested() ? application.activeForm() : nullptr;
  if (!form || isCancelling_ || !canBeCancelled(*form)) return;
  const forms::Guard cancelling(isCancelling_);
  forms::User(application).click(form->control("cmdCancel"));
}

void UnattendedDesktop::answer(forms::Form& form) {
  const auto answers = answers_.find(form.name());
  if (ended_ || answers == answers_.end() || !answers->second) return;
  try {
    answers->second(form);
  } catch (const RunEnded& ended) {
    end(ended);
  } catch (const std::exception& error) {
    // In words, since the component that raised it may be gone when they are told.
    end(RunEnded(RunEnded::refused, wordsOf(error)));
  }
}

forms::Answer UnattendedDesktop::showMessage(const forms::MessageBox& message) {
  const bool asksToExit =
      std::exchange(expectsExitQuestion_, false) && message.buttons == forms::Buttons::yesNo;
  // The warnings of a save, which an export shows once more.
  const bool wasNoted = !noted_.empty() && message.text == noted_;
  if (!asksToExit && !wasNoted) report_.line(message.caption + ": " + message.text);
  if (message.icon == forms::Icon::critical) sawCritical_ = true;
  return forms::defaultAnswer(message.buttons);
}

void UnattendedDesktop::note(const std::string& text) {
  report_.line(forms::Application::current().title() + ": " + text);
  noted_ = text;
}

}  // namespace answers
