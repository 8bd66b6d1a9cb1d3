#pragma once

#include <functional>
#include <memory>
#include <string>

#include "addin/IAddIn.h"
#include "forms/Application.h"
#include "forms/Form.h"
#include "forms/User.h"
#include "forms/UserControl.h"
#include "tests/support/Files.h"
#include "tests/support/ScriptedDesktop.h"
#include "trellisar/window/Host.h"

namespace tests {

/// The whole wizard over a host of its own, as it is before the host runs it: the add-in is created
/// and loaded. Systems go to an empty folder.
///
///     Wizard wizard;
///     wizard.run([&] {
///       wizard.goTo("Display Device");
///       wizard.chooseDisplay("Bravonne P2200");
///     });
class Wizard {
 public:
  explicit Wizard(trellisar::RecoveryOptions recovery = {});
  ~Wizard();

  /// Has the wizard work on the system that the host has open.
  void givenOpenDocument();
  /// Opens a system in the host and has the wizard work on it.
  void givenOpenSystem(const std::filesystem::path& file);

  /// Runs the wizard; the script runs when its window is shown. A window that the script leaves
  /// open is closed without saving.
  void run(const std::function<void()>& script);

  forms::Form& window() const { return *window_; }
  template <typename Control = forms::Control>
  Control& inWindow(const std::string& name) const {
    return dynamic_cast<Control&>(window_->control(name));
  }

  /// Clicks the name of a step in the list.
  void goTo(const std::string& step);
  std::string currentStep() const;
  forms::UserControl& step(const std::string& name) const;
  /// A control of the current step.
  template <typename Control = forms::Control>
  Control& control(const std::string& name) const {
    return dynamic_cast<Control&>(step(currentStep()).control(name));
  }

  void click(const std::string& name) { user.click(control(name)); }
  void clickInWindow(const std::string& name) { user.click(inWindow(name)); }
  /// Saves by the window's button, and compiles: the program is current then.
  void saveAndCompile();
  void enter(const std::string& textBox, const std::string& text);
  std::string text(const std::string& name) const { return control(name).shownText(); }
  /// Chooses a device in the host's device dialog, which a button of the current step opens.
  void chooseDisplay(const std::string& device, const std::string& button = "cmdChoose");
  /// Chooses a command in a selector; an empty one is "nothing assigned".
  void selectCommand(const std::string& selector, const std::string& command);

  host::Document& document() const { return *host->document(); }
  std::shared_ptr<host::Device> device(const std::string& name) const;
  std::string settingsBlock() const;
  std::filesystem::path systemsFolder() const { return systems_.path(); }
  std::filesystem::path systemFile(const std::string& name) const;

 private:
  void load(const std::shared_ptr<host::Document>& document);

  TemporaryFolder systems_;

 public:
  ScriptedDesktop desktop;
  forms::Application application;
  forms::User user{application};
  std::unique_ptr<trellisar::Host> host;
  std::shared_ptr<addin::IAddIn> addIn;

 private:
  forms::Form* window_ = nullptr;
};

}  // namespace tests
