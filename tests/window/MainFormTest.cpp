#include "trellisar/window/MainForm.h"

#include "tests/window/RealWindows.h"
#include "trellisar/window/AddIns.h"

namespace tests {
namespace {

/// A person who starts the wizard twice from the main window with Enter, and leaves every window by
/// its keys.
class KeyboardDesktop : public qt::QtDesktop {
 public:
  using QtDesktop::QtDesktop;
  std::string shown;

  void runModal(forms::Form& form, forms::Form* owner) override {
    shown += form.name() + " ";
    runLater([&form] {
      if (form.name() != "MainForm") {
        form.unload();
        return;
      }
      for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Return, Qt::Key_Escape}) pressKey(key);
    });
    QtDesktop::runModal(form, owner);
  }
};

TEST_F(RealWindows, TheMainWindowRunsTheWizardTwiceAndLetsItsComponentGo) {
  onDesktop<KeyboardDesktop>([](KeyboardDesktop& desktop, trellisar::Host& host) {
    trellisar::MainForm(host, trellisar::createAddIns(app::componentsFile())).run();
    EXPECT_EQ(desktop.shown, "MainForm frmAddIn frmAddIn ");
    EXPECT_TRUE(trellisar::unloadComponents());
    desktop.processEvents();
  });
}

}  // namespace
}  // namespace tests
