#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QTreeWidget>

#include "forms/CommandButton.h"
#include "forms/DropDownList.h"
#include "forms/ListBox.h"
#include "forms/ListView.h"
#include "forms/TabStrip.h"
#include "forms/TextBox.h"
#include "tests/qt/Screen.h"

namespace tests {
namespace {

struct Form : forms::Form {
  Form() : forms::Form("form") {
    setCaption("Lists");
    setSize({9000, 9000});
    list.setBounds({0, 0, 3000, 1500});
    drop.setBounds({0, 1600, 3000, 315});
    rows.setBounds({0, 2000, 4000, 1500});
    button.setBounds({0, 3600, 1500, 375});
    strip.setBounds({0, 4200, 6000, 2000});
    for (const char* text : {"Apple", "Banana", "Blueberry", "Cherry"}) {
      list.add(text);
      drop.add(text);
    }
    rows.setColumns({"Label", "Type"});
    rows.setLabelEditable(true);
    rows.addRow({"First", "A"});
    rows.addRow({"Second", "B"});
    for (std::int16_t i = 3; i < forms::TabStrip::pageCount; ++i) strip.setPageVisible(i, false);
    strip.setPageVisible(1, false);
    strip.setCurrentPage(2);
    onLast.setContainer(strip);
    strip.setCurrentPage(0);
    onFirst.setContainer(strip);
    for (forms::Control* box : {&onFirst, &onLast}) box->setBounds({100, 500, 1000, 315});
  }
  forms::ListBox list{*this, "list"};
  forms::DropDownList drop{*this, "drop"};
  forms::ListView rows{*this, "rows"};
  forms::CommandButton button{*this, "button", "Button"};
  forms::TabStrip strip{*this, "strip"};
  forms::TextBox onFirst{*this, "onFirst"};
  forms::TextBox onLast{*this, "onLast"};
};

class ListsTest : public Screen {
 protected:
  void clickRow(std::int32_t row, bool twice = false) {
    auto& tree = widgetAs<QTreeWidget>(form.rows);
    const QPoint place(10, tree.visualItemRect(tree.topLevelItem(row)).center().y());
    QTest::mouseEvent(twice ? QTest::MouseDClick : QTest::MouseClick, tree.viewport(),
                      Qt::LeftButton, {}, place);
  }
  void clickTab(int place) {
    auto& bar = *widget(form.strip).findChild<QTabBar*>();
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(place).center());
  }
  Form form;
};

TEST_F(ListsTest, AListIsSelectedByMouseArrowsLettersAndEnds) {
  std::string journal;
  form.list.click.connect(
      [&] { journal += form.list.text(form.list.selected()).substr(0, 2) + " "; });
  form.list.doubleClick.connect([&] { journal += "twice "; });
  show(form, [&] {
    auto& list = widgetAs<QListWidget>(form.list);
    const QPoint third = list.visualItemRect(list.item(2)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, third);
    EXPECT_EQ(focus(form), "list");
    key(Qt::Key_Down);
    key(Qt::Key_Home);
    type("b");
    type("b");
    EXPECT_EQ(journal, "Bl Ch Ap Ba Bl ");
    EXPECT_EQ(list.currentRow(), 2);
    journal.clear();
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, third);
    EXPECT_EQ(journal, "Bl twice ");
  });
}

TEST_F(ListsTest, ADropDownListChangesByKeysAndItsListButNotByTheWheel) {
  int clicks = 0;
  form.drop.click.connect([&] { ++clicks; });
  show(form, [&] {
    auto& box = widgetAs<QComboBox>(form.drop);
    EXPECT_EQ(box.currentIndex(), -1);
    form.drop.setFocus();
    settle();
    key(Qt::Key_Down);
    type("c");
    EXPECT_EQ(form.drop.selected(), 3);
    key(Qt::Key_F4);
    ASSERT_TRUE(QApplication::activePopupWidget());
    QTest::keyClick(box.view(), Qt::Key_Up);
    QTest::keyClick(box.view(), Qt::Key_Return);
    EXPECT_EQ(form.drop.selected(), 2);
    EXPECT_EQ(clicks, 3);
    QWheelEvent turn(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&box, &turn);
    EXPECT_EQ(form.drop.selected(), 2);
    form.drop.click.connect([&] { form.drop.setSelected(0); });
    type("c");
    EXPECT_EQ(box.currentText(), "Apple") << "the handler refuses the choice";
  });
}

TEST_F(ListsTest, ALabelEditIsTakenByReturnAndAClickElsewhereAndGivenUpByEscape) {
  form.rows.afterLabelEdit.connect([](bool& cancel, std::string& text) {
    cancel = text.empty();
    text = "<" + text + ">";
  });
  show(form, [&] {
    clickRow(0);
    const auto edit = [&](const std::string& text, Qt::Key end) {
      key(Qt::Key_F2);
      text.empty() ? key(Qt::Key_Backspace) : type(text);
      key(end);
      EXPECT_EQ(focus(form), "rows");
      return form.rows.text(0, 0);
    };
    EXPECT_EQ(edit("x", Qt::Key_Escape), "First");
    EXPECT_EQ(edit("", Qt::Key_Return), "First");
    EXPECT_EQ(edit("y", Qt::Key_Return), "<y>");
    key(Qt::Key_F2);
    type("z");
    click(form.button);
    EXPECT_EQ(focus(form), "button");
    EXPECT_EQ(widgetAs<QTreeWidget>(form.rows).topLevelItem(0)->text(0), "<z>");
  });
}

TEST_F(ListsTest, ASecondSlowClickOpensTheLabelADoubleClickDoesNot) {
  int doubled = 0;
  form.rows.doubleClick.connect([&] { ++doubled; });
  show(form, [&] {
    clickRow(0);
    clickRow(0);
    clickRow(0, true);
    QTest::qWait(2 * QApplication::doubleClickInterval());
    EXPECT_EQ(doubled, 1);
    EXPECT_FALSE(form.rows.isEditing());
    clickRow(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.rows.isEditing(); }));
  });
}

TEST_F(ListsTest, PagesTurnByTheirHeadersAndShowTheirOwnControlsAlone) {
  show(form, [&] {
    EXPECT_TRUE(widget(form.onFirst).isVisible() && !widget(form.onLast).isVisible());
    clickTab(1);
    EXPECT_EQ(form.strip.currentPage(), 2);
    EXPECT_TRUE(!widget(form.onFirst).isVisible() && widget(form.onLast).isVisible());
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(form.strip.currentPage(), 0);
    form.strip.setBounds({0, -600, 6000, 2000});
    settle();
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(form.strip.currentPage(), 0) << "headers out of sight";
  });
}

}  // namespace
}  // namespace tests
