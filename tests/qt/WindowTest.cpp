#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include "forms/CommandButton.h"
#include "forms/Components.h"
#include "forms/Frame.h"
#include "forms/ImageList.h"
#include "forms/Label.h"
#include "forms/ListView.h"
#include "forms/TextBox.h"
#include "forms/UserControl.h"
#include "qt/Pictures.h"
#include "qt/WindowMemory.h"
#include "tests/qt/Screen.h"
#include "tests/support/Files.h"

namespace tests {
namespace {

struct Form : forms::Form {
  explicit Form(const std::string& caption) : forms::Form("form") {
    setCaption(caption);
    label.setBounds({0, 0, 1500, 300});
    box.setBounds({1600, 0, 1500, 315});
    frame.setBounds({0, 500, 4000, 1500});
    button.setBounds({0, 2200, 1500, 375});
  }
  forms::Label label{*this, "label", "System &name:"};
  forms::TextBox box{*this, "box"};
  forms::Frame frame{*this, "frame", "Frame"};
  forms::CommandButton button{*this, "button", "&Open"};
};

struct Selector : forms::UserControl {
  Selector(forms::Container& container, const std::string& name)
      : forms::UserControl(container, name) {
    setBounds({100, 300, 2000, 600});
    inner.setBounds({0, 0, 2000, 315});
  }
  forms::TextBox inner{*this, "inner"};
};

class WindowTest : public Screen {
 protected:
  bool isSeen(const char* name) {
    const auto* found = window(form).findChild<QWidget*>(name);
    return found && found->isVisible();
  }
  Form form{"First"};
};

TEST_F(WindowTest, AModalFormOverAnotherEndsBeforeItAndActivatesItAgain) {
  Form second("Second");
  std::string journal;
  form.activated.connect([&] { journal += "first "; });
  second.activated.connect([&] { journal += "second "; });
  form.button.click.connect([&] {
    show(second, [&] {
      EXPECT_EQ(QApplication::activeModalWidget(), &window(second));
      EXPECT_NE(second.windowHandle(), 0);
      click(form.button);  // lies behind
      form.hide();         // waits for the one over it
      journal += "shown ";
    });
    journal += "closed ";
  });
  show(form, [&] { click(form.button); });
  EXPECT_EQ(journal, "first second shown closed ");
  EXPECT_EQ(second.windowHandle(), 0);
}

TEST_F(WindowTest, TheCloseBoxAsksTheForm) {
  int asked = 0;
  form.queryUnload.connect([&](bool& cancel, forms::UnloadMode mode) {
    EXPECT_EQ(mode, forms::UnloadMode::closeBox);
    cancel = ++asked == 1;
  });
  show(form, [&] {
    window(form).close();
    EXPECT_TRUE(form.isVisible() && window(form).isVisible());
    key(Qt::Key_Escape);
    EXPECT_EQ(asked, 1);
    window(form).close();
  });
  EXPECT_FALSE(form.isLoaded());
}

TEST_F(WindowTest, AFormThatIsHiddenWhileItIsActivatedComesBackAtOnce) {
  form.activated.connect([&] { form.hide(); });
  for (int shown = 0; shown < 2; ++shown) form.showModal(nullptr);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(WindowTest, SizesGoBothWays) {
  form.setSizeable(true);
  form.setMinimumSize({4500, 3000});
  int resizes = 0;
  form.resized.connect([&] { ++resizes; });
  show(form, [&] {
    window(form).resize(500, 400);
    settle();
    EXPECT_EQ(form.innerSize(), (forms::Size{7500, 6000}));
    EXPECT_EQ(resizes, 1);
    form.setSize({9000, 7500});
    settle();
    EXPECT_EQ(window(form).width(), form.innerSize().width / 15);
    EXPECT_EQ(resizes, 2);
    window(form).resize(10, 10);
    EXPECT_GE(form.size().width, 4500 - 15);
  });
}

TEST_F(WindowTest, MessagesAreAnsweredByTheirButtonsAndByEscapeWhereItMayAnswer) {
  using Case = std::tuple<forms::Buttons, Qt::Key, forms::Answer>;
  show(form, [&] {
    for (const auto& [buttons, pressed, answer] :
         {Case{forms::Buttons::ok, Qt::Key_Escape, forms::Answer::ok},
          Case{forms::Buttons::okCancel, Qt::Key_Return, forms::Answer::ok},
          Case{forms::Buttons::yesNoCancel, Qt::Key_Escape, forms::Answer::cancel},
          Case{forms::Buttons::yesNo, Qt::Key_Return, forms::Answer::yes}}) {
      whenBoxOpens(
          [end = pressed](QMessageBox& box) { QTest::keyClick(box.defaultButton(), end); });
      EXPECT_EQ(application.messageBox("Text", buttons), answer);
    }
    whenBoxOpens([&](QMessageBox& box) {
      EXPECT_EQ(box.windowTitle(), "Program");
      EXPECT_EQ(box.text(), "<b>one</b>\n\ntwo");
      EXPECT_EQ(box.textFormat(), Qt::PlainText);
      QTest::keyClick(&box, Qt::Key_Escape);
      box.close();
      EXPECT_TRUE(box.isVisible());
      box.button(QMessageBox::No)->click();
    });
    EXPECT_EQ(application.messageBox("<b>one</b>\r\n\r\ntwo", forms::Buttons::yesNo),
              forms::Answer::no);
  });
}

TEST_F(WindowTest, ControlsComeGoAndMoveWhileTheFormIsShown) {
  forms::registerControl("test.Selector", [](forms::Container& container, const std::string& name) {
    return std::make_unique<Selector>(container, name);
  });
  show(form, [&] {
    auto& added = dynamic_cast<Selector&>(form.addControl("test.Selector", "added"));
    settle();
    EXPECT_TRUE(window(form).isAncestorOf(&widget(added)));
    added.setContainer(form.frame);
    added.inner.setFocus();
    settle();
    EXPECT_EQ(widget(added).parentWidget(), &widget(form.frame));
    EXPECT_EQ(focus(form), "inner");
    type("typed");
    EXPECT_EQ(added.inner.text(), "typed");
    form.removeControl("added");
    settle();
    EXPECT_FALSE(isSeen("inner"));
    EXPECT_EQ(focus(form), "box");
  });
  forms::unregister("test.Selector");
}

TEST_F(WindowTest, AClickMayEndWhatHadTheFocusAndWhatAFrameHeldStays) {
  auto frame = std::make_unique<forms::Frame>(form, "short", "Short");
  auto box = std::make_unique<forms::TextBox>(*frame, "ended");
  forms::TextBox inner(*frame, "inner");
  inner.setBounds({2000, 1200, 1000, 315});
  frame->setBounds({2000, 2200, 2000, 900});
  box->setBounds({100, 300, 1000, 315});
  form.button.click.connect([&] {
    box.reset();
    frame.reset();
  });
  show(form, [&] {
    box->setFocus();
    settle();
    type("x");
    click(form.button);
    EXPECT_FALSE(isSeen("short"));
    EXPECT_EQ(focus(form), "button");
    EXPECT_TRUE(window(form).isAncestorOf(&widget(inner)));
    click(inner);
    type("x");
    EXPECT_EQ(inner.text(), "x");
  });
}

TEST_F(WindowTest, ScreenReadersAreToldTheWordsThatAreSeenNow) {
  form.box.nameBy(form.label);
  show(form, [&] {
    EXPECT_EQ(widget(form.box).accessibleName(), "System name:");
    form.label.setCaption("Location:");
    form.button.setFocus();
    settle();
    form.box.setFocus();
    settle();
    EXPECT_EQ(widget(form.box).accessibleName(), "Location:");
  });
}

TEST_F(WindowTest, F1ShowsTheTopicOfWhatHasTheFocus) {
  const TemporaryFolder folder;
  std::filesystem::create_directories(folder.path() / "help");
  writeFile(folder.path() / "help" / "12.md", "# Names\n");
  const std::string helpFile = folder.inside("program.hlp");
  form.frame.setHelpContext(7);
  form.box.setHelpContext(12);
  show(form, [&] {
    application.setHelpFile(helpFile);
    EXPECT_EQ(desktop().showHelp(0, helpFile, 7), 0);
    key(Qt::Key_F1);
    const auto windows = QApplication::topLevelWidgets();
    const auto isHelp = [](const QWidget* one) { return one->windowTitle() == "Help"; };
    EXPECT_EQ(std::count_if(windows.begin(), windows.end(), isHelp), 1);
    desktop().closeAllHelp();
  });
}

TEST_F(WindowTest, WindowsComeBackAsTheyWereLeftAndOnTheScreen) {
  struct Listed : Form {
    explicit Listed(const std::string& caption) : Form(caption) {
      setSizeable(true);
      setMinimumSize({4500, 3000});
      list.setColumns({"One", "Two", "Three"});
      list.addRow({"1", "2", "3"});
      list.setBounds({0, 2700, 4000, 900});
    }
    forms::ListView list{*this, "list"};
  };
  const TemporaryFolder folder;
  desktop().keepWindowsIn(folder.path() / "windows.ini");
  Listed first("First");
  int kept = 0;
  show(first, [&] {
    window(first).resize(400, 300);
    window(first).move(70, 5000);
    auto& tree = widgetAs<QTreeWidget>(first.list);
    QWidget* header = tree.header()->viewport();
    const int before = tree.columnWidth(0);
    const QPoint edge(before - 1, header->height() / 2);
    QTest::mousePress(header, Qt::LeftButton, {}, edge);
    for (const int moved : {20, 40}) QTest::mouseMove(header, edge + QPoint(moved, 0));
    QTest::mouseRelease(header, Qt::LeftButton, {}, edge + QPoint(40, 0));
    kept = tree.columnWidth(0);
    EXPECT_GT(kept, before);
  });
  Listed again("Again");
  show(again, [&] {
    const QRect screen = window(again).screen()->availableGeometry();
    EXPECT_EQ(window(again).size(), QSize(400, 300));
    EXPECT_EQ(window(again).x(), 70);
    EXPECT_TRUE(screen.contains(window(again).geometry())) << "it was left below the screen";
    EXPECT_EQ(widgetAs<QTreeWidget>(again.list).columnWidth(0), kept);
  });
  desktop().keepWindowsIn({});
}

TEST(WindowMemory, KeepsColumnsAndFoldersThatAreThere) {
  const TemporaryFolder folder;
  qt::WindowMemory memory;
  memory.keepColumns("list|a", {40, 70});
  EXPECT_TRUE(memory.columns("list|a").isEmpty()) << "without a file";
  memory.keepIn(folder.path() / "windows.ini");
  memory.keepColumns("list|Größe, %", {40, 70});
  EXPECT_EQ(memory.columns("list|Größe, %"), (QList<int>{40, 70}));
  const auto rooms = folder.path() / "rooms";
  std::filesystem::create_directory(rooms);
  memory.keepFolder("Open", QString::fromStdString(rooms.string()));
  EXPECT_EQ(memory.folder("Open").toStdString(), rooms.string());
  std::filesystem::remove(rooms);
  EXPECT_EQ(memory.folder("Open"), "");
}

TEST_F(WindowTest, AFormThatIsLargerThanTheScreenIsScrolledToTheFocus) {
  form.setSize({30000, 30000});
  form.button.setBounds({27000, 28000, 1500, 375});
  show(form, [&] {
    const QSize screen = window(form).screen()->availableGeometry().size();
    EXPECT_LE(window(form).width(), screen.width());
    EXPECT_LE(window(form).height(), screen.height());
    form.button.setFocus();
    settle();
    EXPECT_FALSE(widget(form.button).visibleRegion().isEmpty());
  });
}

TEST_F(WindowTest, AMaskedPictureIsSeenThroughAndADarkWindowLightsItsOutline) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "picture.bmp";
  QImage source(20, 20, QImage::Format_RGB32);
  source.fill(QColor(255, 0, 255));
  source.setPixelColor(10, 10, Qt::black);
  source.save(QString::fromStdString(file.string()));
  forms::ImageList list;
  list.setMaskColor(0xFF00FF);
  list.add(forms::Picture(file));
  const auto colorAt = [&](int x, int y) {
    return qt::fittedPixmap(list.item(1), {20, 20}, 1).toImage().pixelColor(x, y);
  };
  EXPECT_EQ(colorAt(2, 2).alpha(), 0);
  EXPECT_EQ(colorAt(10, 10), QColor(Qt::black));
  EXPECT_EQ(colorAt(11, 10).alpha(), 0);
  const QPalette usual = QApplication::palette();
  desktop().wear({.isDark = true});
  EXPECT_EQ(colorAt(10, 10), QColor(Qt::black));
  EXPECT_EQ(colorAt(11, 10).alpha(), 255);
  EXPECT_GT(colorAt(11, 10).lightness(), 200);
  QApplication::setPalette(usual);
}

TEST_F(WindowTest, ALargerFontOfTheSystemReachesFormsAndBoxes) {
  const QFont usual = QApplication::font();
  show(form, [&] { EXPECT_EQ(widget(form.box).width(), 100); });
  desktop().wear({.fontPoints = 10});
  show(form, [&] {
    EXPECT_EQ(widget(form.box).width(), 111);
    EXPECT_NEAR(widget(form.label).font().pointSizeF(), form.label.font().points * 10 / 9, 0.1);
    whenBoxOpens([](QMessageBox& box) {
      EXPECT_EQ(box.font().pointSizeF(), 10);
      box.button(QMessageBox::Ok)->click();
    });
    application.messageBox("Text");
  });
  QApplication::setFont(usual);
  desktop().wear({});
}

}  // namespace
}  // namespace tests
