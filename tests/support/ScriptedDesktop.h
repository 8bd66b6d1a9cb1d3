#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/HeadlessDesktop.h"

namespace tests {

/// A desktop for tests that knows beforehand what it will be asked. Message boxes and common
/// dialogs come in the order in which they are expected; one that comes and was not expected fails
/// the test with its text, and so does one that was expected and never came.
///
///     tests::ScriptedDesktop desktop;
///     forms::Application application(desktop, "\\program");
///     desktop.whenShown("frmAddIn", [&](forms::Form& form) {
///     user.click(form.control("cmdFinish")); }); desktop.expectMessage("Orlena", "Save failed.",
///     forms::Buttons::ok, forms::Icon::exclamation);
///
/// A modal form that its activation leaves visible runs the next script for its name. A form for
/// which there is none, one that is visible still when its script ends, and a script that nobody
/// ran, fail the test.
class ScriptedDesktop : public forms::HeadlessDesktop {
 public:
  using Script = std::function<void(forms::Form&)>;

  ScriptedDesktop() = default;
  /// As `verify`.
  ~ScriptedDesktop() override;

  /// The next message box, and what is answered; without an answer that of the default button.
  void expectMessage(const std::string& caption, const std::string& text,
                     forms::Buttons buttons = forms::Buttons::ok,
                     forms::Icon icon = forms::Icon::none,
                     std::optional<forms::Answer> answer = std::nullopt);

  /// As above, for a message of the host: with an OK button, told by its icon and by what its text
  /// holds.
  void expectMessageWith(forms::Icon icon, const std::string& partOfText);

  /// The next modal run of the form with this name.
  void whenShown(const std::string& formName, Script script);

  /// Every modal run of the form with this name, from now on, that has no script of its own.
  void wheneverShown(const std::string& formName, Script script) {
    standing_[formName] = std::move(script);
  }

  /// The next dialog of its sort, told by its title; the answer is a path with backslashes, empty
  /// for Cancel.
  void expectFolderDialog(const std::string& title, const std::string& answer);
  void expectSaveDialog(const std::string& title, const std::string& answer);
  void expectOpenDialog(const std::string& title, const std::string& answer);

  /// All that the last dialog of its sort was opened with.
  const forms::FolderDialog& lastFolderDialog() const { return lastFolderDialog_; }
  const forms::FileDialog& lastFileDialog() const { return lastFileDialog_; }

  /// What help was asked for; it is shown, and answers 1, unless another answer is set.
  const std::vector<std::int16_t>& helpTopics() const { return helpTopics_; }
  void setHelpAnswer(std::int32_t answer) { helpAnswer_ = answer; }
  int helpClosings() const { return helpClosings_; }

  const std::string& copiedText() const { return copiedText_; }

  /// Fails the test for all that was expected and has not come, and expects nothing any more.
  void verify();

  // The port. A form has a window handle, above 0, while it runs.
  void runModal(forms::Form& form, forms::Form* owner) override;
  forms::Answer showMessage(const forms::MessageBox& message) override;
  std::string chooseFolder(const forms::FolderDialog& dialog) override;
  std::string chooseFileToSave(const forms::FileDialog& dialog) override;
  std::string chooseFileToOpen(const forms::FileDialog& dialog) override;
  std::int32_t showHelp(std::int32_t, const std::string&, std::int16_t topic) override {
    helpTopics_.push_back(topic);
    return helpAnswer_;
  }
  void closeAllHelp() override { ++helpClosings_; }
  void copyText(const std::string& text) override { copiedText_ = text; }

 private:
  struct ExpectedMessage {
    forms::MessageBox box;
    forms::Answer answer;
    bool isPart = false;  // of the text, and the caption is any
    bool matches(const forms::MessageBox& message) const;
  };
  struct ExpectedDialog {
    std::string sort, title, answer;
  };
  struct FormScript {
    std::string formName;
    Script script;
  };

  void runScript(forms::Form& form);
  std::string answerDialog(const std::string& sort, const std::string& title);

  std::deque<ExpectedMessage> messages_;
  std::deque<ExpectedDialog> dialogs_;
  std::deque<FormScript> scripts_;
  std::map<std::string, Script> standing_;
  forms::FolderDialog lastFolderDialog_;
  forms::FileDialog lastFileDialog_;
  std::vector<std::int16_t> helpTopics_;
  std::int32_t helpAnswer_ = 1;
  std::string copiedText_;
  int helpClosings_ = 0;
  std::int32_t lastHandle_ = 0;
};

}  // namespace tests
