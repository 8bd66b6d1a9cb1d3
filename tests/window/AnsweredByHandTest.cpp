#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include "tests/window/RealWindows.h"

namespace tests {
namespace {

enum class Hand { mouse, keyboard };

QWidget& inside(QWidget& place, const QString& name) {
  auto* found = place.findChild<QWidget*>(name);
  if (!found) throw std::runtime_error("no widget shows " + name.toStdString());
  return *found;
}

bool isFocusOn(const QString& name) {
  const QWidget* widget = QApplication::focusWidget();
  while (widget && !widget->objectName().startsWith(name)) widget = widget->parentWidget();
  return widget != nullptr;
}

void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  pressKey(key, modifiers);
  QCoreApplication::processEvents();
}

/// Tab, or Shift+Tab, until a control has the focus whose name begins so.
void tabTo(const QString& name, Qt::Key tab = Qt::Key_Tab) {
  constexpr int mostStops = 60;
  for (int presses = 0; presses < mostStops && !isFocusOn(name); ++presses) {
    press(tab, tab == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
  }
  EXPECT_TRUE(isFocusOn(name)) << "Tab does not come to " << name.toStdString();
}

/// A person at the wizard's window, with the mouse or with the keyboard alone, who answers page
/// after page.
class Person {
 public:
  Person(QWidget& window, Hand hand) : window_(window), hasMouse_(hand == Hand::mouse) {}

  void next() {
    inWindow("cmdNext", Qt::Key_N);
    ++step_;
  }
  void back() {
    inWindow("cmdBack", Qt::Key_B);
    --step_;
  }
  void save() const {
    if (hasMouse_) return click(inside(window_, "cmdSave"));
    tabTo("cmdSave", Qt::Key_Backtab);
    press(Qt::Key_Space);
  }
  void finish() const {
    whenOpenOver(&window_, [this](QWidget& box) {
      hasMouse_ ? click(*dynamic_cast<QMessageBox&>(box).button(QMessageBox::Yes))
                : press(Qt::Key_Y, Qt::AltModifier);
    });
    inWindow("cmdFinish", Qt::Key_F);
  }

  void tick(const QString& name) const {
    reach(page(), name);
    if (!hasMouse_) press(Qt::Key_Space);
  }
  void choose(const QString& option) const {
    if (hasMouse_) return tick(option);
    tabTo(option.left(option.indexOf('(')));
    for (int i = 0; i < 3 && !isFocusOn(option); ++i) press(Qt::Key_Down);
  }
  void type(const QString& box, const QString& text) const {
    reach(page(), box);
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
  }
  static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  void chooseDevice(const QString& button, const QString& device) const {
    whenOpenOver(&window_, [](QWidget&) { press(Qt::Key_Escape); });
    tick(button);
    whenOpenOver(&window_, [this, device](QWidget& dialog) {
      row(dialog, "lvwDevices", device);
      hasMouse_ ? click(inside(dialog, "cmdOK")) : press(Qt::Key_Return);
    });
    tick(button);
  }
  /// Looks for the command with the arrow keys, from the first one.
  void command(const QString& commands, const QString& wanted) const {
    QWidget& box = inside(inside(page(), commands), "cboCommands");
    hasMouse_ ? click(box) : tabTo(commands);
    if (auto* popup = QApplication::activePopupWidget()) popup->close();
    auto& selector = dynamic_cast<QComboBox&>(box);
    walkTo(wanted, selector.count(), [&] { return selector.currentText(); });
  }
  void addTransmitter(const QString& type) const {
    row(page(), "listDevices", type);
    tick("cmdAdd");
  }
  void renameTransmitter(const QString& from, const QString& to) const {
    row(page(), "lvwTransmitters", from);
    hasMouse_ ? tick("cmdRename") : press(Qt::Key_F2);
    QWidget* editor = QApplication::focusWidget();
    for (const QChar letter : to) {  // also those that no key of QTest bears
      QTest::sendKeyEvent(QTest::Click, editor, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    QTest::keyClick(editor, Qt::Key_Return);
  }

 private:
  static void click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
    QCoreApplication::processEvents();
  }
  void inWindow(const QString& button, Qt::Key accelerator) const {
    hasMouse_ ? click(inside(window_, button)) : press(accelerator, Qt::AltModifier);
  }
  QWidget& page() const { return inside(window_, "ctl" + QString::number(step_)); }
  void reach(QWidget& place, const QString& name) const {
    hasMouse_ ? click(inside(place, name)) : tabTo(name);
  }
  void row(QWidget& place, const QString& name, const QString& text) const {
    auto& list = dynamic_cast<QAbstractItemView&>(inside(place, name));
    const auto first = list.model()->index(0, 0);
    if (hasMouse_) {
      const auto found = list.model()->match(first, Qt::DisplayRole, text, 1, Qt::MatchExactly);
      list.scrollTo(found.at(0));
      const QPoint middle = list.visualRect(found.at(0)).center();
      QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, middle);
      return;
    }
    tabTo(name);
    walkTo(text, list.model()->rowCount(),
           [&] { return list.currentIndex().siblingAtColumn(0).data().toString(); });
  }
  static void walkTo(const QString& wanted, int count, const std::function<QString()>& current) {
    press(Qt::Key_Home);
    for (int i = 0; i < count && current() != wanted; ++i) press(Qt::Key_Down);
  }

  QWidget& window_;
  bool hasMouse_;
  int step_ = 0;
};

void answer(Person person) {
  person.next();
  person.type("txtSystemName", "Room 4");
  person.next();  // the display
  person.chooseDevice("cmdChoose", "Bravonne P2200");
  person.command("ctlCommands(0)", "RGB_2");
  person.command("ctlCommands(1)", "[ Unassigned ]");
  person.tick("chkPowerRelay");
  person.type("txtDelay(0)", "5");
  person.type("txtDelay(1)", "90");
  person.next();  // audio
  person.choose("optVolumeKnob(1)");
  person.choose("optMicrophone(1)");
  person.tick("chkMuteOnDigInp3");
  person.next();  // power
  person.tick("chkSecondOff");
  Person::type("3");
  person.next();  // lockout
  person.type("txtPowerLockoutTime(1)", "0");
  person.type("txtPowerLockoutTime(2)", "150");
  person.tick("chkContact");
  person.choose("optContact(1)");
  person.back();
  person.next();
  person.next();  // screen and lift
  person.tick("chkInclude(0)");
  person.chooseDevice("cmdChoose(0)", "Fallowmere Roll 240");
  person.type("txtPulseTimeOn(0)", "20");
  person.type("txtPulseTimeOff(0)", "22");
  person.tick("chkInclude(1)");
  person.chooseDevice("cmdChoose(1)", "Hoistrel HL-60 Serial");
  person.command("ctlPowerOff(1)", "[ Unassigned ]");
  person.next();  // transmitters
  person.addTransmitter("Wall Plate Transmitter");
  person.addTransmitter("Lectern Transmitter");
  person.addTransmitter("Wall Plate Transmitter");
  person.renameTransmitter("Input 1", QString::fromUtf8("Größe ½m"));
  person.renameTransmitter("Input 3", QString::fromUtf8("äöüß5678"));
  person.tick("chkUse3OLReceiver");
  person.next();  // the room
  person.tick("chkInclude(0)");
  person.tick("chkInclude(1)");
  person.type("txtFenletPassword", "two  words");
  person.tick("chkOccupancy");
  person.tick("chkPowerTimeout");
  person.type("txtPowerOffTimeout", "15");
  person.next();
  person.save();
  person.finish();
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

class AnsweredBy : public RealWindows, public testing::WithParamInterface<Hand> {};

TEST_P(AnsweredBy, OneHandGivesTheSameRoomAsAnAnswersFile) {
  runWizard([](QWidget& window) { answer({window, GetParam()}); });
  writeFile(folder.path() / "answers.json", sameAnswers);
  const std::string build = std::string("\"") + ORLENA_PROGRAM + "\" build \"" +
                            (folder.path() / "answers.json").string() + "\" --out \"" +
                            (folder.path() / "file").string() + "\" >/dev/null 2>&1";
  ASSERT_EQ(std::system(build.c_str()), 0);
  base::Json typed = listingOf(folder.path(), "Room 4");
  base::Json read = listingOf(folder.path() / "file", "Room 4");
  typed.erase("folder");
  read.erase("folder");
  EXPECT_EQ(typed.dump(2), read.dump(2));
}

INSTANTIATE_TEST_SUITE_P(Persons, AnsweredBy, testing::Values(Hand::mouse, Hand::keyboard),
                         [](const auto& hand) {
                           return hand.param == Hand::mouse ? "Mouse" : "Keyboard";
                         });

}  // namespace
}  // namespace tests
