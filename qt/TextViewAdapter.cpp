#include "qt/TextViewAdapter.h"

#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>

#include "qt/Conversions.h"

namespace qt {

TextViewAdapter::TextViewAdapter(forms::TextView& view, const Place& place)
    : Adapter(view, place, new QPlainTextEdit(&place.parent)),
      view_(view),
      edit_(static_cast<QPlainTextEdit*>(widget())) {
  edit_->setReadOnly(true);
  edit_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // every line is wrapped
  edit_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  watch(edit_->viewport());
}

/// A text that grows at its end, as a log does, stays in view at its end.
void TextViewAdapter::show() {
  const QString text = linesToQt(view_.text());
  if (text == shown_) return;
  const bool grown = !shown_.isEmpty() && text.startsWith(shown_);
  shown_ = text;
  edit_->setPlainText(text);
  if (grown) edit_->verticalScrollBar()->setValue(edit_->verticalScrollBar()->maximum());
}

bool TextViewAdapter::mousePressed(QWidget& part, QMouseEvent&) {
  return &part == edit_->viewport() && reach() != Reached::smoothly;
}

bool TextViewAdapter::keyLeft(QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
      return true;
    default:
      return false;
  }
}

}  // namespace qt
