#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <cstdlib>
#include <fstream>

#include "app/AddIn.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "qt/QtDesktop.h"
#include "trellisar/compile/Listing.h"
#include "trellisar/document/SystemFile.h"

namespace {

namespace fs = std::filesystem;

/// A person at the wizard's window, with mouse and keyboard alone.
class Hand {
 public:
  QWidget& find(const QString& name) const { return inside(*window(), name); }
  QWidget& onPage(int step, const QString& name) const {
    return inside(find("ctl" + QString::number(step)), name);
  }

  static void click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
    QCoreApplication::processEvents();
  }
  static void type(QWidget& box, const QString& text) {
    click(box);
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&box, text);
  }

  /// Once a modal window of this class has opened over the wizard.
  template <typename Window>
  static void whenOpen(const std::function<void(Window&)>& act) {
    QTimer::singleShot(5, qApp, [act] {
      auto* open = qobject_cast<Window*>(QApplication::activeModalWidget());
      const bool isWizard = open && open->template findChild<QWidget*>("ctlTabs");
      if (!open || isWizard) return whenOpen<Window>(act);
      act(*open);
    });
  }

  static QWidget& inside(QWidget& place, const QString& name) {
    auto* found = place.findChild<QWidget*>(name);
    if (!found) throw std::runtime_error("no widget shows " + name.toStdString());
    return *found;
  }

 private:
  static QWidget* window() {
    for (QWidget* candidate : QApplication::topLevelWidgets()) {
      if (candidate->isVisible() && candidate->findChild<QWidget*>("ctlTabs")) return candidate;
    }
    throw std::runtime_error("the wizard has no window");
  }
};

void clickRow(QAbstractItemView& list, const QString& text) {
  const auto matches =
      list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly);
  list.scrollTo(matches.at(0));
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(matches.at(0)).center());
}

void chooseDevice(QWidget& button, const QString& device) {
  Hand::whenOpen<QDialog>([device](QDialog& dialog) {
    clickRow(dynamic_cast<QAbstractItemView&>(Hand::inside(dialog, "lvwDevices")), device);
    Hand::click(Hand::inside(dialog, "cmdOK"));
  });
  Hand::click(button);
}

/// Looks for the command with the arrow keys, from the first one.
void chooseCommand(QWidget& deviceCommands, const QString& command) {
  auto& selector = dynamic_cast<QComboBox&>(Hand::inside(deviceCommands, "cboCommands"));
  Hand::click(selector);
  if (auto* popup = QApplication::activePopupWidget()) popup->close();
  QTest::keyClick(&selector, Qt::Key_Home);
  for (int i = 0; i < selector.count() && selector.currentText() != command; ++i) {
    QTest::keyClick(&selector, Qt::Key_Down);
  }
}

/// A person who answers page after page, with Next between them.
class Answering {
 public:
  explicit Answering(const Hand& hand) : hand_(hand) {}

  void next() {
    Hand::click(hand_.find("cmdNext"));
    ++step_;
  }
  QWidget& on(const QString& name) const { return hand_.onPage(step_, name); }
  void click(const QString& name) const { Hand::click(on(name)); }
  void type(const QString& name, const QString& text) const { Hand::type(on(name), text); }
  void choose(const QString& name, const QString& command) const {
    chooseCommand(on(name), command);
  }
  void addTransmitter(const QString& type) const {
    clickRow(dynamic_cast<QAbstractItemView&>(on("listDevices")), type);
    click("cmdAdd");
  }
  void renameTransmitter(const QString& from, const QString& to) const {
    clickRow(dynamic_cast<QAbstractItemView&>(on("lvwTransmitters")), from);
    click("cmdRename");
    QWidget* editor = QApplication::focusWidget();
    for (const QChar letter : to) {  // also those that no key of QTest bears
      QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    QTest::keyClick(editor, Qt::Key_Return);
  }

 private:
  const Hand& hand_;
  int step_ = 0;
};

void answerInTheWindow(const Hand& hand) {
  Answering page(hand);
  page.next();
  page.type("txtSystemName", "Room 4");
  page.next();  // the display
  chooseDevice(page.on("cmdChoose"), "Bravonne P2200");
  page.choose("ctlCommands(0)", "RGB_2");
  page.choose("ctlCommands(1)", "[ Unassigned ]");
  page.click("chkPowerRelay");
  page.type("txtDelay(0)", "5");
  page.type("txtDelay(1)", "90");
  page.next();  // audio
  page.click("optVolumeKnob(1)");
  page.click("optMicrophone(1)");
  page.click("chkMuteOnDigInp3");
  page.next();  // power
  page.click("chkSecondOff");
  QTest::keyClicks(QApplication::focusWidget(), "3");
  page.next();  // lockout
  page.type("txtPowerLockoutTime(1)", "0");
  page.type("txtPowerLockoutTime(2)", "150");
  page.click("chkContact");
  page.click("optContact(1)");
  page.next();  // screen and lift
  page.click("chkInclude(0)");
  chooseDevice(page.on("cmdChoose(0)"), "Fallowmere Roll 240");
  page.type("txtPulseTimeOn(0)", "20");
  page.type("txtPulseTimeOff(0)", "22");
  page.click("chkInclude(1)");
  chooseDevice(page.on("cmdChoose(1)"), "Hoistrel HL-60 Serial");
  page.choose("ctlPowerOff(1)", "[ Unassigned ]");
  page.next();  // transmitters
  page.addTransmitter("Wall Plate Transmitter");
  page.addTransmitter("Lectern Transmitter");
  page.addTransmitter("Wall Plate Transmitter");
  page.renameTransmitter("Input 1", QString::fromUtf8("Größe ½m"));
  page.renameTransmitter("Input 3", QString::fromUtf8("äöüß5678"));
  page.click("chkUse3OLReceiver");
  page.next();  // the room
  page.click("chkInclude(0)");
  page.click("chkInclude(1)");
  page.type("txtFenletPassword", "two  words");
  page.click("chkOccupancy");
  page.click("chkPowerTimeout");
  page.type("txtPowerOffTimeout", "15");
  Hand::click(hand.find("cmdNext"));
  Hand::click(hand.find("cmdSave"));
  Hand::whenOpen<QMessageBox>([](QMessageBox& box) { Hand::click(*box.button(QMessageBox::Yes)); });
  Hand::click(hand.find("cmdFinish"));
}

constexpr const char* sameAnswers = R"({
  "name": "Room 4",
  "display": {"device": "Bravonne P2200", "rgb": "RGB_2", "composite": "",
              "relay": {"on_delay": 5, "off_delay": 90}},
  "audio": {"volume_knob": "master", "microphone": "always", "mute_on_input_3": true},
  "power": {"second_off": {"delay": 3}},
  "lockout": {"on": 0, "off": 150, "contact": "continue"},
  "screen": {"device": "Fallowmere Roll 240", "on_pulse": 20, "off_pulse": 22},
  "lift": {"device": "Hoistrel HL-60 Serial", "off": ""},
  "transmitters": [{"type": "Wall Plate Transmitter", "label": "Größe ½m"},
                   {"type": "Lectern Transmitter"},
                   {"type": "Wall Plate Transmitter", "label": "äöüß5678"}],
  "three_input_receiver": true,
  "room": {"kestrum": true, "fenlet": true, "fenlet_password": "two  words",
           "occupancy": true, "power_off_after": 15}
})";

base::Json listingOf(const fs::path& parent) {
  base::Json listing =
      trellisar::listing(*trellisar::readSystemFile(parent / "Room 4" / "Room 4.tsy", nullptr));
  listing.erase("folder");
  return listing;
}

TEST(Window, SameAnswersGiveTheSameRoomAsAnAnswersFile) {
  std::string pattern = (fs::temp_directory_path() / "orlena-test-XXXXXX").string();
  const fs::path folder = mkdtemp(pattern.data());
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("TRELLISAR_SYSTEMS", (folder / "window").c_str(), 1);
  const fs::path data = fs::path(ORLENA_SOURCE_FOLDER) / "data";
  char name[] = "test";
  char* arguments[] = {name, nullptr};
  {
    qt::QtDesktop desktop(1, arguments);
    forms::Application application(desktop, forms::fromMachinePath(data));
    trellisar::Host host({.dataFolder = data, .library = {}, .preferencesFile = {}});
    const Hand hand;
    QTimer::singleShot(0, qApp, [&] { answerInTheWindow(hand); });
    app::AddIn(host).runOnNewSystem();
  }
  std::ofstream(folder / "answers.json") << sameAnswers;
  const std::string build = std::string("\"") + ORLENA_PROGRAM + "\" build \"" +
                            (folder / "answers.json").string() + "\" --out \"" +
                            (folder / "file").string() + "\" >/dev/null 2>&1";
  ASSERT_EQ(std::system(build.c_str()), 0);
  EXPECT_EQ(listingOf(folder / "window").dump(2), listingOf(folder / "file").dump(2));
  fs::remove_all(folder);
}

}  // namespace
