#pragma once

#include <gtest/gtest.h>

#include <algorithm>

#include "forms/CheckBox.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "host/DeviceCommands.h"
#include "host/Numbers.h"
#include "host/iTab.h"
#include "tests/wizard/Wizard.h"

namespace tests {

/// The wizard with one of its steps under test.
class StepTest : public testing::Test, public Wizard {
 protected:
  explicit StepTest(std::string step) : step_(std::move(step)) {}

  /// Runs the wizard, and the script on the step, with a display where one is named.
  void onStep(const std::string& display, const std::function<void()>& script) {
    run([&] {
      enterWith(display);
      script();
    });
  }
  void onStep(const std::function<void()>& script) { onStep("", script); }
  void enterWith(const std::string& display) {
    if (!display.empty()) {
      goTo("Display Device");
      chooseDisplay(display);
    }
    goTo(step_);
  }
  forms::UserControl& tested() { return step(step_); }
  void fill() { tested().call("SetData"); }
  void save() { host::AsTab(tested()).iTab_SaveData(); }
  void next() { clickInWindow("cmdNext"); }
  void leave() {
    next();
    clickInWindow("cmdBack");
  }
  /// Types over a box and presses Enter.
  void hold(const std::string& box, const std::string& text) {
    enter(box, text);
    user.press(forms::keys::enter);
  }
  /// Types over a box and goes to another control.
  void enterAndLeave(const std::string& box, const std::string& text, const std::string& other) {
    enter(box, text);
    user.moveFocus(control(other));
  }
  /// Opens the device dialog by a button and closes it without a choice.
  void cancelDialog(const std::string& button) {
    desktop.whenShown("DeviceDialog", [&](forms::Form& dialog) { user.close(dialog); });
    click(button);
  }

  /// A character for each control: '-' hidden, '.' disabled, 'o' usable, 'x' usable and checked or
  /// chosen, 'X' so and disabled.
  std::string states(const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) {
      const auto* box = dynamic_cast<forms::CheckBox*>(&control(name));
      const auto* option = dynamic_cast<forms::OptionButton*>(&control(name));
      const bool isOn = (box && box->isChecked()) || (option && option->isChosen());
      const char* ofKind = isOn ? "Xx" : ".o";
      all += control(name).isVisible() ? ofKind[control(name).isEnabled()] : '-';
    }
    return all;
  }
  bool isVisible(const std::string& name) { return control(name).isVisible(); }
  bool isEnabled(const std::string& name) { return control(name).isEnabled(); }
  bool isChecked(const std::string& name) { return control<forms::CheckBox>(name).isChecked(); }
  bool isChosen(const std::string& name) { return control<forms::OptionButton>(name).isChosen(); }
  /// What a command selector shows.
  std::string command(const std::string& selector) {
    return control<host::DeviceCommands>(selector).get_Text();
  }
  bool isModified() { return document().get_Modified(); }
  void expectMessage(const std::string& text, forms::Icon icon = forms::Icon::none) {
    desktop.expectMessage("Orlena", text, forms::Buttons::ok, icon);
  }
  /// How often the add-in has called an operation of the host.
  long callsOf(const std::string& operation) {
    const auto& calls = host->journal().calls();
    return std::count_if(calls.begin(), calls.end(),
                         [&](const auto& call) { return call.starts_with(operation); });
  }

 private:
  std::string step_;
};

}  // namespace tests
