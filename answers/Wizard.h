#pragma once

#include "answers/Page.h"

namespace forms {
class Form;
}  // namespace forms

namespace answers {

struct Step;

/// The wizard's window under the hands of a run, which goes through its steps with Next.
class Wizard {
 public:
  /// The window is shown and active; both outlive this.
  Wizard(forms::Form& window, Hands& hands) : window_(window), hands_(hands) {}

  /// Raises RunEnded, as refused, where the wizard took a new system in the place of the one that
  /// was opened for the run.
  void refuseAnotherSystem() const;

  forms::Form& window() const { return window_; }
  /// The step that is shown.
  Page page() const;
  bool isAtEnd() const;
  /// Goes to the next step. Raises RunEnded, as refused, where the wizard stays.
  void next() const;

 private:
  forms::Form& window_;
  Hands& hands_;
};

/// What a step asks for; one that is not in the table asks for nothing.
const Step& stepOf(const Page& page);

/// Between two acts: raises what ended the run, if anything did.
void goOn(const Hands& hands);

}  // namespace answers
