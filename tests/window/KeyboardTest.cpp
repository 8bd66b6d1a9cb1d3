#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <cstdlib>
#include <functional>

#include "app/AddIn.h"
#include "app/Environment.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "qt/QtDesktop.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"

namespace {

namespace fs = std::filesystem;

/// A person without a mouse, who sees where the focus is and knows no more of the window.
class Keys {
 public:
  static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::focusWidget() != nullptr; }));
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QCoreApplication::processEvents();
  }
  static void alt(Qt::Key letter) { press(letter, Qt::AltModifier); }
  static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }

  /// Tab, or Shift+Tab, until a control has the focus whose name begins so.
  static void tabTo(const QString& name, Qt::Key tab = Qt::Key_Tab) {
    for (int presses = 0; presses < mostStops && !isOn(name); ++presses) {
      press(tab, tab == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
    EXPECT_TRUE(isOn(name)) << "Tab does not come to " << name.toStdString();
  }
  static void tick(const QString& name) {
    tabTo(name);
    press(Qt::Key_Space);
  }

  /// Presses the key, which opens a window over this one, and acts on that.
  static void open(Qt::Key key, Qt::KeyboardModifiers modifiers, const std::function<void()>& act) {
    whenOpen(QApplication::activeWindow(), act);
    press(key, modifiers);
  }

 private:
  static constexpr int mostStops = 60;
  static bool isOn(const QString& name) {
    const QWidget* widget = QApplication::focusWidget();
    while (widget && !widget->objectName().startsWith(name)) widget = widget->parentWidget();
    return widget != nullptr;
  }
  static void whenOpen(QWidget* below, const std::function<void()>& act) {
    QTimer::singleShot(5, qApp, [below, act] {
      QWidget* top = QApplication::activeModalWidget();
      if (!top || top == below) return whenOpen(below, act);
      act();
    });
  }
};

void chooseDisplay() {
  Keys::tabTo("cmdChoose");
  Keys::open(Qt::Key_Space, Qt::NoModifier, [] { Keys::press(Qt::Key_Escape); });
  Keys::open(Qt::Key_Space, Qt::NoModifier, [] {
    Keys::alt(Qt::Key_D);
    Keys::type("q");  // the first of that letter
    Keys::press(Qt::Key_Down);
    Keys::press(Qt::Key_Return);
  });
}

void addTransmitter() {
  Keys::tabTo("listDevices");
  Keys::type("w");
  Keys::tick("cmdAdd");
  Keys::tabTo("lvwTransmitters");
  Keys::press(Qt::Key_F2);
  Keys::type("Podium");
  Keys::press(Qt::Key_Return);
}

void answerByKeyboard() {
  const auto next = [] { Keys::alt(Qt::Key_N); };
  next();  // name and location
  Keys::tabTo("txtSystemName");
  Keys::type("Lecture Hall");
  next();  // the display
  chooseDisplay();
  Keys::tick("chkPowerRelay");
  Keys::tabTo("txtDelay(1)");
  Keys::type("45");
  next();  // audio
  Keys::tabTo("optVolumeKnob");
  Keys::press(Qt::Key_Up);
  next();  // power
  Keys::alt(Qt::Key_O);
  Keys::alt(Qt::Key_P);
  next();  // lockout
  Keys::tick("chkContact");
  next();  // screen and lift
  Keys::alt(Qt::Key_B);
  Keys::tick("cmdNext");
  next();  // transmitters
  addTransmitter();
  next();  // the room
  Keys::tick("chkInclude(1)");
  Keys::tabTo("txtFenletPassword");
  Keys::type("two words");
  next();  // finish
  Keys::tabTo("cmdSave", Qt::Key_Backtab);
  Keys::press(Qt::Key_Space);
  Keys::open(Qt::Key_F, Qt::AltModifier, [] { Keys::alt(Qt::Key_Y); });
}

TEST(Keyboard, AnswersTheWholeWizardAlone) {
  std::string pattern = (fs::temp_directory_path() / "orlena-test-XXXXXX").string();
  const fs::path folder = mkdtemp(pattern.data());
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("TRELLISAR_SYSTEMS", folder.c_str(), 1);
  char name[] = "test";
  char* arguments[] = {name, nullptr};
  {
    qt::QtDesktop desktop(1, arguments);
    forms::Application application(desktop, forms::fromMachinePath(app::dataFolder()));
    trellisar::Host host({.dataFolder = app::dataFolder()});
    QTimer::singleShot(0, qApp, answerByKeyboard);
    app::AddIn(host).runOnNewSystem();
  }
  const fs::path file = folder / "Lecture Hall" / "Lecture Hall.tsy";
  const base::Json listing = trellisar::listing(*trellisar::readSystemFile(file, nullptr));
  const auto device = [&](const std::string& deviceName) {
    for (const auto& one : listing.at("devices")) {
      if (one.at("name") == deviceName) return one;
    }
    return base::Json();
  };
  EXPECT_EQ(device("Display Device").value("type", ""), "Quenlowe K40") << listing.dump(2);
  EXPECT_EQ(device("Receiver").at("properties").at("Volume Knob Control"), "1d");
  EXPECT_EQ(device("Wall Plate Transmitter OL1").value("label", ""), "Podium");
  EXPECT_EQ(listing.at("touch_panels").at(0).at("name"), "Fenlet");
  fs::remove_all(folder);
}

}  // namespace
