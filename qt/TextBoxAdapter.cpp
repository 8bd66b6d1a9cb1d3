#include "qt/TextBoxAdapter.h"

#include <QtCore/QCoreApplication>
#include <QtWidgets/QLineEdit>
#include <algorithm>
#include <utility>

#include "forms/Guard.h"
#include "qt/Conversions.h"
#include "qt/Keyboard.h"
#include "qt/Painting.h"

namespace qt {
namespace {

/// The number of UTF-16 units that both texts start with, never half a character.
qsizetype commonStart(const QString& one, const QString& other) {
  const auto [end, ignored] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  qsizetype count = end - one.begin();
  if (count > 0 && one[count - 1].isHighSurrogate()) --count;
  return count;
}

qsizetype commonEnd(const QString& one, const QString& other, qsizetype start) {
  const qsizetype most = std::min(one.size(), other.size()) - start;
  qsizetype count = 0;
  while (count < most && one[one.size() - 1 - count] == other[other.size() - 1 - count]) ++count;
  if (count > 0 && one[one.size() - count].isLowSurrogate()) --count;
  return count;
}

bool isErasing(const QKeyEvent& event) {
  return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete;
}

bool isMoving(const QKeyEvent& event) {
  return event.key() == Qt::Key_Left || event.key() == Qt::Key_Right ||
         event.key() == Qt::Key_Home || event.key() == Qt::Key_End;
}

/// The style draws the outline darker than the window, which a dark one leaves unseen.
class LineEdit : public QLineEdit {
 public:
  using QLineEdit::QLineEdit;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLineEdit::paintEvent(event);
    if (hasFocus() || !isDark(palette().color(QPalette::Window))) return;
    QPainter painter(this);
    drawBorder(painter, rect(), lineColor(palette()));
  }
};

}  // namespace

TextBoxAdapter::TextBoxAdapter(forms::TextBox& box, const Place& place)
    : Adapter(box, place, new LineEdit(&place.parent)),
      box_(box),
      edit_(static_cast<QLineEdit*>(widget())) {
  connect(edit_, &QLineEdit::textChanged, this, [this] { edited(); });  // also by a screen reader
  connect(edit_, &QLineEdit::selectionChanged, this, [this] { selected(); });
  connect(edit_, &QLineEdit::cursorPositionChanged, this, [this] { selected(); });
}

void TextBoxAdapter::show() {
  const QString text = toQt(box_.text());
  edit_->setReadOnly(box_.isReadOnly());
  if (box_.isReadOnly() && isSystemColor(box_.backColor())) {
    QPalette palette = edit_->palette();
    palette.setColor(QPalette::Base, palette.color(QPalette::Window));
    edit_->setPalette(palette);
  }
  if (edit_->text() != text) showText(text);
  showSelection(text);
}

/// What was typed goes into the widget as one small change, so that the widget can undo it.
void TextBoxAdapter::showText(const QString& text) {
  if (!typing_) {
    edit_->setText(text);
    return;
  }
  const QString before = edit_->text();
  const qsizetype start = commonStart(before, text);
  const qsizetype end = commonEnd(before, text, start);
  edit_->setSelection(static_cast<int>(start), static_cast<int>(before.size() - start - end));
  const QString inserted = text.mid(start, text.size() - start - end);
  if (!inserted.isEmpty()) {
    edit_->insert(inserted);
  } else if (edit_->hasSelectedText()) {
    edit_->del();
  }
}

void TextBoxAdapter::showSelection(const QString& text) {
  const int start = unitsBefore(text, box_.selectionStart());
  const int end = unitsBefore(text, box_.selectionStart() + box_.selectionLength());
  if (start == end) {
    if (edit_->hasSelectedText() || edit_->cursorPosition() != start) {
      edit_->deselect();
      edit_->setCursorPosition(start);
    }
  } else if (edit_->selectionStart() != start || edit_->selectionEnd() != end) {
    edit_->setSelection(start, end - start);
  }
}

bool TextBoxAdapter::mousePressed(QWidget&, QMouseEvent&) {
  cameByMouse_ = !box_.hasFocus();
  return reach() != Reached::smoothly;
}

/// The press has put the caret; where nothing was selected with the mouse, all is selected as it is
/// when the focus comes by Tab.
bool TextBoxAdapter::mouseReleased(QWidget&, QMouseEvent&) {
  const bool came = std::exchange(cameByMouse_, false);
  if (came && box_.hasFocus() && box_.selectsAllOnFocus() && box_.selectionLength() == 0) {
    box_.selectAll();
  }
  return false;
}

/// Backspace and Delete alone are the form's; with a modifier they erase a word, or cut.
TextBoxAdapter::KeyUse TextBoxAdapter::useOf(QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  return isErasing(event) && modifiers ? KeyUse::widget : KeyUse::form;
}

bool TextBoxAdapter::keyLeft(QKeyEvent& event) {
  if (isTyping(event)) {
    type(event.text());
    return true;
  }
  return !isMoving(event) && !event.modifiers().testFlag(Qt::ControlModifier);
}

/// A character that comes through a dead key or an input method is typed like any other.
bool TextBoxAdapter::composed(QInputMethodEvent& event) {
  if (event.commitString().isEmpty() || event.replacementLength() != 0 ||
      !event.preeditString().isEmpty()) {
    return false;
  }
  const QString text = event.commitString();
  QInputMethodEvent ended;
  QCoreApplication::sendEvent(edit_, &ended);
  type(text);
  return true;
}

void TextBoxAdapter::type(const QString& text) {
  const forms::Guard guard(typing_);
  act([&](forms::User& user) { user.type(box_, fromQt(text)); });
}

void TextBoxAdapter::edited() {
  if (isShowing() || !hasControl()) return;
  const forms::Guard guard(typing_);
  QString text = edit_->text();
  for (const char16_t end : {u'\r', u'\n', u'\x2028', u'\x2029'})
    text.replace(QChar(end), QChar(u' '));
  const std::int32_t caret = codePointsBefore(text, edit_->cursorPosition());
  act([&](forms::User& user) { user.edit(box_, fromQt(text), caret); });
}

void TextBoxAdapter::selected() {
  if (isShowing() || !hasControl()) return;
  const QString text = edit_->text();
  if (text != toQt(box_.text())) return;  // an edit is on its way and will tell the caret
  const int start = edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
  const int end = edit_->hasSelectedText() ? edit_->selectionEnd() : start;
  const std::int32_t first = codePointsBefore(text, start);
  box_.select(first, codePointsBefore(text, end) - first);
}

}  // namespace qt
