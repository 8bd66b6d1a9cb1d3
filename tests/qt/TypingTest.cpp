#include <QtGui/QClipboard>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include "forms/TextBox.h"
#include "tests/qt/Screen.h"

namespace tests {
namespace {

struct Form : forms::Form {
  Form() : forms::Form("form") {
    setCaption("Typing");
    box.setBounds({0, 0, 3000, 315});
    box.change.connect([this] { ++changes; });
  }
  forms::TextBox box{*this, "box"};
  int changes = 0;
};

class TypingTest : public Screen {
 protected:
  QLineEdit& edit() { return widgetAs<QLineEdit>(form.box); }
  Form form;
};

TEST_F(TypingTest, CharactersGoThroughTheFilterAndTheChangeHandlerOneByOne) {
  form.box.keyPress.connect([](forms::KeyPress& press) {
    if (press.character == U'\\') press.character = 0;
  });
  form.box.change.connect([&] {
    const std::int32_t caret = form.box.selectionStart();
    if (form.box.text() != "a1b") return;
    form.box.setText("ab");
    form.box.select(caret - 1, 0);
  });
  show(form, [&] {
    type("a\\b");
    EXPECT_EQ(form.changes, 2);
    key(Qt::Key_Left);
    type("1");
    EXPECT_EQ(edit().text(), "ab");
    EXPECT_EQ(edit().cursorPosition(), 1);
  });
}

TEST_F(TypingTest, MaximumLengthCountsCodePointsAndHoldsForPastingToo) {
  form.box.setMaxLength(4);
  show(form, [&] {
    QApplication::clipboard()->setText(QStringLiteral("\U0001D11E\U0001D11E56789"));
    key(Qt::Key_V, Qt::ControlModifier);
    type("x");
    EXPECT_EQ(form.box.text(), "\U0001D11E\U0001D11E56");
    EXPECT_EQ(edit().text().toStdString(), form.box.text());
    EXPECT_EQ(edit().cursorPosition(), 6);
    form.box.setText("longer");
    settle();
    EXPECT_EQ(edit().text(), "longer") << "a text of the program is shown whole";
    form.box.setReadOnly(true);
    settle();
    key(Qt::Key_Delete);
    EXPECT_EQ(edit().text(), "longer");
  });
}

TEST_F(TypingTest, CaretAndSelectionAreTheSameOnBothSides) {
  form.box.setText("\U0001D11Eabc");
  show(form, [&] {
    key(Qt::Key_End);
    key(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(form.box.selectionStart(), 3);
    EXPECT_EQ(form.box.selectionLength(), 1);
    type("X");
    EXPECT_EQ(form.box.text(), "\U0001D11EabX");
    form.box.select(1, 2);
    settle();
    EXPECT_EQ(edit().selectedText(), QStringLiteral("ab"));
    key(Qt::Key_Backspace);
    EXPECT_EQ(form.box.text(), "\U0001D11EX");
    EXPECT_EQ(edit().cursorPosition(), 2);
  });
}

TEST_F(TypingTest, BoxThatSelectsAllOnFocusDoesSoForAMouseToo) {
  forms::TextBox other(form, "other");
  other.setBounds({0, 600, 3000, 315});
  other.setSelectsAllOnFocus(true);
  other.setText("mossgate");
  show(form, [&] {
    click(other);
    settle();
    EXPECT_EQ(widgetAs<QLineEdit>(other).selectedText(), "mossgate");
    click(other);
    settle();
    EXPECT_EQ(widgetAs<QLineEdit>(other).selectedText(), "") << "the second click puts the caret";
  });
}

TEST_F(TypingTest, UndoReachesTheFormAndAWordIsErasedAtOnce) {
  show(form, [&] {
    type("one two");
    key(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(form.box.text(), "one ");
    key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.box.text(), "one two");
  });
}

TEST_F(TypingTest, WhatAnInputMethodComposesIsTyped) {
  form.box.setMaxLength(3);
  show(form, [&] {
    QInputMethodEvent composing(QStringLiteral("´"), {});
    QCoreApplication::sendEvent(&edit(), &composing);
    EXPECT_EQ(form.box.text(), "");
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("éàôü"));
    QCoreApplication::sendEvent(&edit(), &composed);
    EXPECT_EQ(form.box.text(), "éàô");
  });
}

}  // namespace
}  // namespace tests
