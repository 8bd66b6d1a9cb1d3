#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "answers/Answers.h"
#include "answers/Delivery.h"
#include "answers/Page.h"

namespace forms {
class Form;
}  // namespace forms

namespace answers {

struct Act;
struct Step;

/// A person with an answers file at the wizard: goes through all steps with Next, answers each page
/// from top to bottom, saves with the save button, exports and uploads where that is asked for, and
/// leaves by Finish.
class WizardRun {
 public:
  WizardRun(const Answers& answers, const Delivery& delivery, Hands& hands)
      : answers_(answers), delivery_(delivery), hands_(hands) {}

  /// Works on the wizard's window, which is shown and active. Raises RunEnded when the run can't go
  /// on.
  void drive(forms::Form& wizard);

  /// Where the system was saved; nothing when it was not.
  const std::optional<std::filesystem::path>& savedFile() const { return savedFile_; }

 private:
  using Visit = std::function<void(const Act&, const Answer&)>;

  void answer(const Page& page, const Step& step) const;
  void checkHeld(const Page& page, const Step& step) const;
  /// Calls `visit` with each answer that is given for the step, from the top of its page.
  void eachAnswer(const Step& step, const Visit& visit) const;
  void save(forms::Form& wizard);
  void finish(forms::Form& wizard) const;

  const Answers& answers_;
  const Delivery& delivery_;
  Hands& hands_;
  std::optional<std::filesystem::path> savedFile_;
};

}  // namespace answers
