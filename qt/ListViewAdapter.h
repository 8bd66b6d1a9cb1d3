#pragma once

#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QLineEdit>

#include "forms/ListView.h"
#include "qt/Adapter.h"
#include "qt/ListKeys.h"

class QTreeWidget;
class QTreeWidgetItem;

namespace qt {

class ListViewAdapter : public Adapter {
 public:
  ListViewAdapter(forms::ListView& list, const Place& place);

  QWidget* focusWidget() const override;

 protected:
  void show() override;
  bool mousePressed(QWidget& part, QMouseEvent& event) override;
  bool mouseReleased(QWidget& part, QMouseEvent&) override { return !isEditor(part); }
  bool doubleClicked(QWidget& part, QMouseEvent& event) override;
  KeyUse useOf(QKeyEvent& event) override;
  bool keyLeft(QKeyEvent& event) override;

 private:
  bool isEditor(const QWidget& part) const { return &part == editor_; }
  void showColumns();
  void showRows();
  bool showRow(QTreeWidgetItem& item, std::int32_t row);
  void showEditor();
  void openEditor();
  void fitColumns();
  void fitLastColumn();
  QString keyInMemory() const;
  void keepColumns();
  bool scrollSideways(const QKeyEvent& event);

  forms::ListView& list_;
  QTreeWidget* tree_;
  QPointer<QLineEdit> editor_;
  QTimer slowClick_;
  ListKeys keys_;
  int fittedWidth_ = 0;  // that the last column was fitted to
};

}  // namespace qt
