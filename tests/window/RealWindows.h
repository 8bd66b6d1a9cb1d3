#pragma once

#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <cstdlib>
#include <functional>
#include <string>

#include "app/AddIn.h"
#include "app/Environment.h"
#include "forms/Application.h"
#include "qt/QtDesktop.h"
#include "tests/support/Files.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"

namespace tests {

/// Acts once a window is there, over this one where there is one.
inline void whenOpenOver(const QWidget* below, const std::function<void(QWidget&)>& act) {
  QTimer::singleShot(5, qApp, [below, act] {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* top = QApplication::activeWindow();
    // A window that has opened takes keys only once it is the active one.
    const bool isOpen = top && top != below && (!modal || modal == top);
    isOpen ? act(*top) : whenOpenOver(below, act);
  });
}

/// The program's own windows on a screen that nobody sees, with an empty folder for systems.
class RealWindows : public testing::Test {
 protected:
  RealWindows() {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("TRELLISAR_SYSTEMS", folder.path().c_str(), 1);
  }

  /// Runs an act over a host of its own.
  template <typename Desktop>
  void onDesktop(const std::function<void(Desktop&, trellisar::Host&)>& act) {
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    Desktop desktop(1, arguments);
    const forms::Application application(desktop, forms::fromMachinePath(app::dataFolder()));
    trellisar::Host host({.dataFolder = app::dataFolder()});
    act(desktop, host);
  }
  /// Runs the wizard for a person who answers it and closes it.
  void runWizard(const std::function<void(QWidget&)>& answer) {
    onDesktop<qt::QtDesktop>([&](qt::QtDesktop&, trellisar::Host& host) {
      whenOpenOver(nullptr, answer);
      app::AddIn(host).runOnNewSystem();
    });
  }
  /// What a system is that was saved in a folder.
  static base::Json listingOf(const std::filesystem::path& parent, const std::string& name) {
    return trellisar::listing(*trellisar::readSystemFile(parent / name / (name + ".tsy"), nullptr));
  }

  TemporaryFolder folder;
};

/// Presses a key where the focus is, once it is anywhere.
inline void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
  QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

}  // namespace tests
