#include "tests/support/ScriptedDesktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <utility>

#include "forms/Form.h"

namespace tests {
namespace {

std::string toText(const forms::MessageBox& box) {
  return "\"" + box.text + "\"\n  caption \"" + box.caption + "\", buttons " +
         std::to_string(static_cast<int>(box.buttons)) + ", icon " +
         (box.icon == forms::Icon::none ? "none" : forms::toText(box.icon));
}

}  // namespace

ScriptedDesktop::~ScriptedDesktop() { verify(); }

void ScriptedDesktop::expectMessage(const std::string& caption, const std::string& text,
                                    forms::Buttons buttons, forms::Icon icon,
                                    std::optional<forms::Answer> answer) {
  messages_.push_back(
      {{text, caption, buttons, icon}, answer.value_or(forms::defaultAnswer(buttons))});
}

void ScriptedDesktop::expectMessageWith(forms::Icon icon, const std::string& partOfText) {
  messages_.push_back({{partOfText, "", forms::Buttons::ok, icon}, forms::Answer::ok, true});
}

bool ScriptedDesktop::ExpectedMessage::matches(const forms::MessageBox& message) const {
  if (!isPart) return box == message;
  return message.buttons == box.buttons && message.icon == box.icon &&
         message.text.find(box.text) != std::string::npos;
}

void ScriptedDesktop::whenShown(const std::string& formName, Script script) {
  scripts_.push_back({formName, std::move(script)});
}

void ScriptedDesktop::expectFolderDialog(const std::string& title, const std::string& answer) {
  dialogs_.push_back({"folder", title, answer});
}

void ScriptedDesktop::expectSaveDialog(const std::string& title, const std::string& answer) {
  dialogs_.push_back({"save", title, answer});
}

void ScriptedDesktop::expectOpenDialog(const std::string& title, const std::string& answer) {
  dialogs_.push_back({"open", title, answer});
}

void ScriptedDesktop::verify() {
  for (const auto& expected : std::exchange(messages_, {})) {
    ADD_FAILURE() << "This message box did not come: " << toText(expected.box);
  }
  for (const auto& expected : std::exchange(dialogs_, {})) {
    ADD_FAILURE() << "This " << expected.sort << " dialog did not come: \"" << expected.title
                  << "\"";
  }
  for (const auto& expected : std::exchange(scripts_, {})) {
    ADD_FAILURE() << "The form " << expected.formName << " was not shown for its script.";
  }
}

void ScriptedDesktop::runModal(forms::Form& form, forms::Form*) {
  form.setWindowHandle(++lastHandle_);
  try {
    form.activateNow();
    if (form.isVisible()) runScript(form);
    processEvents();
  } catch (const std::exception& failure) {
    ADD_FAILURE() << "On the form " << form.name() << ": " << failure.what();
  }
  if (form.isVisible()) {
    ADD_FAILURE() << "The form " << form.name() << " is still visible when its script ends.";
    form.hide();
  }
  form.setWindowHandle(0);
}

void ScriptedDesktop::runScript(forms::Form& form) {
  const auto next = std::find_if(scripts_.begin(), scripts_.end(), [&](const FormScript& script) {
    return script.formName == form.name();
  });
  if (const auto standing = standing_.find(form.name());
      next == scripts_.end() && standing != standing_.end()) {
    return standing->second(form);
  }
  if (next == scripts_.end()) {
    ADD_FAILURE() << "The form " << form.name() << " (\"" << form.caption()
                  << "\") was not expected.";
    form.hide();
    return;
  }
  const Script script = std::move(next->script);
  scripts_.erase(next);
  script(form);
}

forms::Answer ScriptedDesktop::showMessage(const forms::MessageBox& message) {
  if (messages_.empty()) {
    ADD_FAILURE() << "This message box was not expected: " << toText(message);
    return forms::escapeAnswer(message.buttons);
  }
  const ExpectedMessage expected = std::move(messages_.front());
  messages_.pop_front();
  if (!expected.matches(message)) {
    ADD_FAILURE() << "Another message box came: " << toText(message)
                  << "\nexpected: " << toText(expected.box);
  }
  return expected.answer;
}

std::string ScriptedDesktop::answerDialog(const std::string& sort, const std::string& title) {
  if (dialogs_.empty() || dialogs_.front().sort != sort || dialogs_.front().title != title) {
    ADD_FAILURE() << "This " << sort << " dialog was not expected: \"" << title << "\"";
    return {};
  }
  const std::string answer = dialogs_.front().answer;
  dialogs_.pop_front();
  return answer;
}

std::string ScriptedDesktop::chooseFolder(const forms::FolderDialog& dialog) {
  lastFolderDialog_ = dialog;
  return answerDialog("folder", dialog.title);
}

std::string ScriptedDesktop::chooseFileToSave(const forms::FileDialog& dialog) {
  lastFileDialog_ = dialog;
  return answerDialog("save", dialog.title);
}

std::string ScriptedDesktop::chooseFileToOpen(const forms::FileDialog& dialog) {
  lastFileDialog_ = dialog;
  return answerDialog("open", dialog.title);
}

}  // namespace tests
