#include "trellisar/window/MainForm.h"

#include <gtest/gtest.h>

#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <cstdlib>

#include "app/Environment.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "qt/QtDesktop.h"
#include "trellisar/window/AddIns.h"

namespace {

namespace fs = std::filesystem;

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
      press(Qt::Key_Return);
      press(Qt::Key_Return);
      press(Qt::Key_Escape);
    });
    QtDesktop::runModal(form, owner);
  }

 private:
  static void press(Qt::Key key) {
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    QTest::keyClick(QApplication::focusWidget(), key);
  }
};

TEST(MainWindow, RunsTheWizardTwiceAndLetsItsComponentGo) {
  std::string pattern = (fs::temp_directory_path() / "orlena-test-XXXXXX").string();
  const fs::path folder = mkdtemp(pattern.data());
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("TRELLISAR_SYSTEMS", folder.c_str(), 1);
  char name[] = "test";
  char* arguments[] = {name, nullptr};
  KeyboardDesktop desktop(1, arguments);
  forms::Application application(desktop, forms::fromMachinePath(app::dataFolder()));
  trellisar::Host host({.dataFolder = app::dataFolder()});
  trellisar::MainForm(host, trellisar::createAddIns(app::componentsFile())).run();
  EXPECT_EQ(desktop.shown, "MainForm frmAddIn frmAddIn ");
  EXPECT_TRUE(trellisar::unloadComponents());
  desktop.processEvents();
  fs::remove_all(folder);
}

}  // namespace
