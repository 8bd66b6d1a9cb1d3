#include <gtest/gtest.h>

#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <cstdlib>
#include <fstream>

#include "app/AddIn.h"
#include "forms/Application.h"
#include "forms/Paths.h"
#include "qt/QtDesktop.h"
#include "trellisar/Listing.h"
#include "trellisar/SystemFile.h"

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

void chooseDisplay(const Hand& hand, const QString& device) {
  Hand::whenOpen<QDialog>([device](QDialog& dialog) {
    auto& list = dynamic_cast<QAbstractItemView&>(Hand::inside(dialog, "lstDevices"));
    const auto matches = list.model()->match(list.model()->index(0, 0), Qt::DisplayRole, device, 1,
                                             Qt::MatchExactly);
    list.scrollTo(matches.at(0));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(matches.at(0)).center());
    Hand::click(Hand::inside(dialog, "cmdOK"));
  });
  Hand::click(hand.onPage(2, "cmdChoose"));
}

void answerInTheWindow(const Hand& hand) {
  const auto next = [&](int times) {
    for (int i = 0; i < times; ++i) Hand::click(hand.find("cmdNext"));
  };
  next(1);
  Hand::type(hand.onPage(1, "txtSystemName"), "Room 4");
  next(1);
  chooseDisplay(hand, "Bravonne P2200");
  QWidget& selector = Hand::inside(hand.onPage(2, "ctlCommands(0)"), "cboCommands");
  Hand::click(selector);
  if (auto* popup = QApplication::activePopupWidget()) popup->close();
  QTest::keyClick(&selector, Qt::Key_Down);
  Hand::click(hand.onPage(2, "chkPowerRelay"));
  Hand::type(hand.onPage(2, "txtDelay(0)"), "5");
  Hand::type(hand.onPage(2, "txtDelay(1)"), "90");
  next(2);
  Hand::click(hand.onPage(4, "chkSecondOff"));
  QTest::keyClicks(QApplication::focusWidget(), "3");
  Hand::click(hand.find("cmdSave"));
  Hand::click(hand.find("cmdFinish"));
  Hand::whenOpen<QMessageBox>([](QMessageBox& box) { Hand::click(*box.button(QMessageBox::Yes)); });
  Hand::click(hand.find("cmdFinish"));
}

constexpr const char* sameAnswers = R"({
  "name": "Room 4",
  "display": {"device": "Bravonne P2200", "rgb": "RGB_2", "relay": {"on_delay": 5, "off_delay": 90}},
  "power": {"second_off": {"delay": 3}}
})";

trellisar::Json listingOf(const fs::path& parent) {
  trellisar::Json listing =
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
