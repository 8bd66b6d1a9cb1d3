#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "answers/Report.h"
#include "answers/RunEnded.h"
#include "forms/HeadlessDesktop.h"

namespace answers {

/// The desktop of a run that nobody watches. Message boxes go to the report and get their default
/// button; a form that is shown goes to whoever said that it would answer it, and any other is
/// closed.
class UnattendedDesktop : public forms::HeadlessDesktop {
 public:
  using AnswersForm = std::function<void(forms::Form&)>;

  explicit UnattendedDesktop(const Report& report) : report_(report) {}

  /// Says who answers the forms of this name from now on; null: nobody. When it raises RunEnded,
  /// the form is closed and `throwIfEnded` raises it again outside: the code that showed the form
  /// is left in the ordinary way.
  void answerForms(const std::string& name, AnswersForm answers) {
    answers_[name] = std::move(answers);
  }

  /// The folder that the folder dialogs answer from now on; empty: they are cancelled.
  void answerFolders(const std::string& folder) { folder_ = folder; }

  /// The run is about to leave the wizard: the question whether to, which comes next, is not told.
  void expectExitQuestion() { expectsExitQuestion_ = true; }

  /// Raises what ended the run, if anything did.
  void throwIfEnded() const;

  /// Whether a message with the critical icon was shown since the last `forgetCritical`.
  bool sawCritical() const { return sawCritical_; }
  void forgetCritical() { sawCritical_ = false; }

  void runModal(forms::Form& form, forms::Form* owner) override;
  /// An interrupt cancels what is under way.
  void processEvents() override;
  forms::Answer showMessage(const forms::MessageBox& message) override;
  void note(const std::string& text) override;
  std::string chooseFolder(const forms::FolderDialog&) override { return folder_; }
  std::string chooseFileToSave(const forms::FileDialog&) override { return {}; }
  std::string chooseFileToOpen(const forms::FileDialog&) override { return {}; }

 private:
  void answer(forms::Form& form);
  /// Ends the run, unless it has ended for an earlier reason.
  void end(const RunEnded& reason);

  const Report& report_;
  std::map<std::string, AnswersForm> answers_;
  std::string folder_;
  std::string noted_;
  std::optional<RunEnded> ended_;
  bool sawCritical_ = false;
  bool expectsExitQuestion_ = false;
  bool isCancelling_ = false;
};

}  // namespace answers
